#pragma once

#include <wx/dialog.h>

class wxButton;
class wxStaticText;
class wxTextCtrl;

/// The layout of the dialog that asks for a text to find in tagnames and for the text to put in its place.
class TagSearchAndReplaceDialogBase : public wxDialog
{
public:
    TagSearchAndReplaceDialogBase(wxWindow* parent, wxWindowID id, const wxString& title,
                                  const wxPoint& position = wxDefaultPosition, const wxSize& size = wxDefaultSize);

    // The controls; the dialog owns them.
    wxStaticText* findLabel = nullptr;
    wxStaticText* replaceLabel = nullptr;
    wxButton* replaceButton = nullptr;
    wxButton* cancelButton = nullptr;
    wxTextCtrl* findText = nullptr;
    wxTextCtrl* replaceText = nullptr;

protected:
    virtual void OnReplace(wxCommandEvent& event);
    virtual void OnCancel(wxCommandEvent& event);

private:
    wxSizer* layFields();
};
