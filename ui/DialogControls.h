#pragma once

#include <wx/string.h>
#include <wx/windowid.h>

class wxButton;
class wxCheckBox;
class wxDialog;
class wxSizer;
class wxStaticText;
class wxTextCtrl;
class wxWindow;

/// The controls that the dialogs are made of, in the look that all dialogs share.
namespace dialogControls
{

/// Pixels around a control.
constexpr int border = 5;

/// Gives a dialog the dark look; to be called before its controls are created.
void dress(wxDialog& dialog);

/// A title beside or above a control.
wxStaticText* createLabel(wxWindow* parent, const wxString& text);

/// An empty single-line text field.
/// @param width  pixels at 96 dots per inch that it takes at least
wxTextCtrl* createField(wxWindow* parent, int width);

/// A check box, clear at first.
/// @param text  may be empty
wxCheckBox* createCheckBox(wxWindow* parent, const wxString& text = wxString());

/// A button that ends the dialog.
wxButton* createButton(wxWindow* parent, wxWindowID id, const wxString& text);

/// Changes the text of such a button and gives it the width that the text needs.
void setButtonText(wxButton& button, const wxString& text);

/// A row that centres the two buttons that end the dialog.
wxSizer* layButtons(wxButton* confirm, wxButton* cancel);

/// The small yellow button beside the byte-order boxes; what it opens is left to the dialog.
wxButton* createHelpButton(wxWindow* parent);

} // namespace dialogControls
