// The flat picture buttons of the toolbars. Each of their looks is a picture of its own, found by the name of the plain
// one.

#include "ui/ImageButton.h"

#include "ui/Desktop.h"
#include "ui/NamedImages.h"

namespace
{

/// Pixels of a button on either side, of which its picture takes the middle: all of it can be pressed.
constexpr int buttonSide = 32;

} // namespace

wxBitmapButton* createImageButton(wxWindow* parent, const wxString& name, const wxString& tooltip, bool hovering)
{
    // With a size of its own GTK is not asked how large the button would like to be, which takes it 0.2 ms each time.
    wxBitmapButton* const button =
        desktop::createPictureButton(parent, namedImage(name), parent->FromDIP(wxSize(buttonSide, buttonSide)));
    button->SetBitmapPressed(namedImage(name + "_pressed"));
    // A space button must not change under the mouse: its look says which space is shown.
    if (hovering)
        button->SetBitmapCurrent(namedImage(name + "_hover"));
    button->SetToolTip(tooltip);
    // A picture says nothing to a screen reader.
    desktop::setAccessibleName(*button, tooltip);
    desktop::keepFocusOnClick(*button);
    return button;
}
