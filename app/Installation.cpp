// The installation of the suite where there is no registry. The registry key becomes a file of that name, its value
// "Path" an entry in it. A file in the user's own folder comes before those of the machine.

#include "app/Installation.h"

#include "files/KeyFile.h"
#include "ui/Paths.h"

#include <wx/tokenzr.h>
#include <wx/utils.h>

namespace
{

wxString environmentOr(const wxString& name, const wxString& otherwise)
{
    // A variable that is set to nothing counts as not set; desktops agree on that for these folders.
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
        // The file alone says that the suite is installed. Without a "Path" its path is empty, as with an empty
        // registry value.
        if (const auto suitePath = readKeyFileEntry(toPath(path), "Path"))
            return wxString(suitePath->c_str(), wxConvFile);
    }
    return std::nullopt;
}
