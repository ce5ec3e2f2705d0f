// The same on Windows, where most of it is as the program needs it.

#include "ui/Desktop.h"

#include <wx/textctrl.h>
#include <wx/utils.h>

namespace desktop
{

void preferDark()
{
    // The toolkit draws the desktop's own parts of this system in their light variant only; its check boxes are white
    // and need no frame.
}

void drawControlsPlainly()
{
    // Controls of this system do.
}

void showFocusAtOnce(wxWindow&)
{
    // The user's settings of this system decide.
}

void keepOneTabStop(wxComboBox&)
{
    // This system stops once.
}

void setAccessibleName(wxWindow&, const wxString&)
{
    // Screen readers of this system take the label in front of a control.
}

void keepFocusOnClick(wxWindow& control)
{
    // Buttons of this system take the focus when they are pressed; the Tab key may give it to them.
    control.Bind(wxEVT_SET_FOCUS,
                 [](wxFocusEvent& event)
                 {
                     wxWindow* const before = event.GetWindow();
                     if (before && wxGetMouseState().LeftIsDown())
                         before->SetFocus();
                     event.Skip();
                 });
}

int fieldHeight(const wxTextCtrl& field)
{
    return field.GetBestSize().GetHeight();
}

} // namespace desktop
