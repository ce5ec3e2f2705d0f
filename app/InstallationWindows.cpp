// The installation of the suite, from the registry of the user.

#include "app/Installation.h"

#include <wx/msw/registry.h>

std::optional<wxString> findInstallation()
{
    const wxRegKey key(wxRegKey::HKCU, "Software\\BELTHORNE LTD\\Varnok Software Suite");
    if (!key.Exists())
        return std::nullopt;
    // The key alone says that the suite is installed. A missing value leaves the path empty and is no reason to stop.
    wxString path;
    if (key.HasValue("Path"))
        key.QueryValue("Path", path);
    return path;
}
