#include "app/Installation.h"

#include <wx/fileconf.h>
#include <wx/filename.h>
#include <wx/tokenzr.h>
#include <wx/utils.h>
#include <wx/wfstream.h>

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
        if (!wxFileName::IsFileReadable(path))
            continue;
        wxFileInputStream stream(path);
        wxFileConfig keys(stream);
        keys.SetExpandEnvVars(false);
        return keys.Read("Path", wxString());
    }
    return std::nullopt;
}
