#include "app/Installation.h"

#include <wx/msw/registry.h>

std::optional<wxString> findInstallation()
{
    const wxRegKey key(wxRegKey::HKCU, "Software\\BELTHORNE LTD\\Varnok Software Suite");
    if (!key.Exists())
        return std::nullopt;
    wxString path;
    if (key.HasValue("Path"))
        key.QueryValue("Path", path);
    return path;
}
