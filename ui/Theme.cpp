#include "ui/Theme.h"

#include <wx/fontenum.h>
#include <wx/settings.h>

namespace
{

wxFont face(const wxString& name, int points, int weight)
{
    // The font of a missing face would be the toolkit's guess; the desktop's own face is what its user reads best.
    static const bool installed = wxFontEnumerator::IsValidFacename("Segoe UI");
    wxFont font = wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT);
    if (installed)
        font.SetFaceName(name);
    font.SetPointSize(points);
    font.SetNumericWeight(weight);
    return font;
}

} // namespace

namespace theme
{

wxFont regular(int points)
{
    return face("Segoe UI", points, wxFONTWEIGHT_NORMAL);
}

wxFont semibold(int points)
{
    return face("Segoe UI Semibold", points, wxFONTWEIGHT_SEMIBOLD);
}

} // namespace theme
