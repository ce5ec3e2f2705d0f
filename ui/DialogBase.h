#pragma once

#include <wx/dialog.h>

class wxButton;
class wxCheckBox;
class wxSizer;
class wxStaticText;
class wxTextCtrl;

/// What the dialogs of the program share: the dark look, the controls in that look, and the buttons that end them.
/// The layout class of a dialog derives from it, creates its controls with it, and finishes with `lay`.
class DialogBase : public wxDialog
{
public:
    /// Ends the dialog without confirming it; the dialog owns it.
    wxButton* cancelButton = nullptr;

protected:
    DialogBase(wxWindow* parent, wxWindowID id, const wxString& title, const wxPoint& position, const wxSize& size);

    /// Pixels around a control.
    static constexpr int border = 5;

    /// Pixels around the whole.
    static constexpr int margin = 8;

    /// Ends the dialog with wxID_CANCEL.
    virtual void OnCancel(wxCommandEvent& event);

    /// Shows the picture that explains the swaps.
    virtual void OnByteSwapHelp(wxCommandEvent& event);

    /// A title beside or above a control.
    wxStaticText* createLabel(const wxString& text);

    /// An empty single-line text field.
    /// @param name   what screen readers call it: the label beside it
    /// @param width  pixels that it takes at least
    wxTextCtrl* createField(const wxString& name, int width);

    /// Pixels of a field that shows so many characters at once, capital letters too, in the font in use.
    int fieldWidthFor(int characters) const;

    /// A check box, clear at first.
    wxCheckBox* createCheckBox(const wxString& text);

    /// A check box without a text of its own, clear at first.
    /// @param name  what screen readers call it
    wxCheckBox* createBareCheckBox(const wxString& name);

    /// A button that ends the dialog.
    wxButton* createButton(wxWindowID id, const wxString& text);

    /// Changes the text of such a button and gives it the width that the text needs.
    static void setButtonText(wxButton& button, const wxString& text);

    /// The small yellow button beside the byte-order boxes.
    wxButton* createHelpButton();

    /// Creates the Cancel button and centres it in a row with the button that confirms, which the Enter key presses
    /// from now on.
    wxSizer* layEnding(wxButton* confirm);

    /// Takes the whole content and gives the dialog the size of it and its place in the middle of the parent.
    void lay(wxSizer* content);
};
