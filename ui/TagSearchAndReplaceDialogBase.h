#pragma once

#include "ui/DialogBase.h"

/// The layout of the dialog that asks for a text to find in tagnames and for the text to put in its place.
class TagSearchAndReplaceDialogBase : public DialogBase
{
public:
    TagSearchAndReplaceDialogBase(wxWindow* parent, wxWindowID id, const wxString& title,
                                  const wxPoint& position = wxDefaultPosition, const wxSize& size = wxDefaultSize);

    // The controls; the dialog owns them.
    wxStaticText* findLabel = nullptr;
    wxStaticText* replaceLabel = nullptr;
    wxButton* replaceButton = nullptr;
    wxTextCtrl* findText = nullptr;
    wxTextCtrl* replaceText = nullptr;

protected:
    virtual void OnReplace(wxCommandEvent& event);

private:
    wxSizer* layFields();
};
