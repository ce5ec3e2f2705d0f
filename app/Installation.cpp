#include "app/Installation.h"

#include "files/KeyFile.h"
#include "ui/Paths.h"

#include <wx/tokenzr.h>
#include <wx/utils.h>

namespace
{

wxString environmentOr(const wxString& name, const wxString& otherwise)
{
    wxString value;
    return wxGetEnv(name, &value) && !value.empty() ? value : otherwise;
}

/// The folders that hold key files, the user's own first.
wxArrayString configurationFolders()
{
    wxArrayString folders;
    folders.Add(environmentOr("XDG_CONFIG_HOME", wxGetHomeDir() + "/.config"));
    for (const wxString& folder : wxStringTokenize(environmentOr("XDG_CONFIG_DIRS", "/etc/xdg"), ":"))
        folders.Add(folder);
    return folders;
}

} // namespace

std::optional<wxString> findInstallation()
{
    for (const wxString& folder : configurationFolders())
    {
        const wxString path = folder + "/BELTHORNE LTD/Varnok Software Suite.conf";
        // Not wxFileConfig: it takes backslashes and quotes for its own signs, and tells the user about what it
        // does not understand.
        if (const auto suitePath = readKeyFileEntry(toPath(path), "Path"))
            return wxString(suitePath->c_str(), wxConvFile);
    }
    return std::nullopt;
}
