#pragma once

#include <wx/defs.h>

class wxBitmapBundle;
class wxBitmapButton;
class wxButton;
class wxComboBox;
class wxSize;
class wxString;
class wxTextCtrl;
class wxTreeCtrl;
class wxWindow;

/// What the toolkit leaves to each desktop to arrange.
namespace desktop
{

/// Asks the desktop to draw its own parts (scroll bars, menus, message boxes) in their dark variant, and check boxes
/// with a frame that is seen on the dark grounds of our windows.
/// To be called once, before the first window is created.
void preferDark();

/// Shows which control has the keyboard, and check boxes that are not ticked, plainly on the dark background.
/// To be called once, before the first window is created.
void drawControlsPlainly();

/// Asks the desktop for the dark variant of what it draws around and inside a window, where a window has to ask itself.
/// To be called once its controls are there.
void darken(wxWindow& window);

/// Shows the focus in a window from the start, and not only after the first key.
void showFocusAtOnce(wxWindow& window);

/// A tree whose chosen node is seen plainly on a dark background, whether it has the keyboard or not.
/// @param style  the toolkit's styles of trees
wxTreeCtrl* createTree(wxWindow* parent, long style);

/// A button without a border that shows plainly when it has the keyboard, in whatever colours it gets.
/// @param style  the toolkit's styles of buttons
wxButton* createButton(wxWindow* parent, wxWindowID id, const wxString& text, long style);

/// A flat button with nothing but a picture, on the ground of the header rows; the frame that shows the focus is light.
wxBitmapButton* createPictureButton(wxWindow* parent, const wxBitmapBundle& picture, const wxSize& size);

/// Makes the Tab key stop once at a combo box.
void keepOneTabStop(wxComboBox& box);

/// Gives a control the name by which screen readers call it, where no text of its own does.
void setAccessibleName(wxWindow& control, const wxString& name);

/// Lets a click on a control leave the keyboard focus where it is, so that the keys go on reaching the grid.
/// The control is still reached with the Tab key.
void keepFocusOnClick(wxWindow& control);

/// Pixels of height that the desktop gives a text field of its own accord.
/// The toolkit's best size for one cannot be used with GTK: it is too small at first and grows with every layout.
int fieldHeight(const wxTextCtrl& field);

} // namespace desktop
