#include "ui/Desktop.h"

#include <wx/textctrl.h>

namespace desktop
{

void preferDark()
{
    // The toolkit draws the desktop's own parts of this system in their light variant only.
}

void keepFocusOnClick(wxWindow& control)
{
    // Buttons of this system take the focus with the press; it is handed back with the release.
    control.Bind(wxEVT_SET_FOCUS,
                 [](wxFocusEvent& event)
                 {
                     if (wxWindow* const before = event.GetWindow())
                         before->SetFocus();
                     event.Skip();
                 });
}

int fieldHeight(const wxTextCtrl& field)
{
    return field.GetBestSize().GetHeight();
}

} // namespace desktop
