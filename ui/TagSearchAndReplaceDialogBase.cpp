#include "ui/TagSearchAndReplaceDialogBase.h"

#include "ui/DialogControls.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace
{

/// Pixels around the fields.
constexpr int fieldsBorder = 8;

/// Pixels of a field, enough for most tagnames.
constexpr int fieldWidth = 220;

/// Pixels between fields and buttons.
constexpr int buttonGap = 10;

} // namespace

TagSearchAndReplaceDialogBase::TagSearchAndReplaceDialogBase(wxWindow* parent, wxWindowID id, const wxString& title,
                                                             const wxPoint& position, const wxSize& size)
    : wxDialog(parent, id, title, position, size, wxDEFAULT_DIALOG_STYLE)
{
    SetSizeHints(wxDefaultSize, wxDefaultSize);
    dialogControls::dress(*this);

    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    wxSizer* const fields = layFields();
    replaceButton = dialogControls::createButton(this, wxID_OK, "Replace");
    cancelButton = dialogControls::createButton(this, wxID_CANCEL, "Cancel");
    sizer->Add(fields, 0, wxEXPAND | wxALL, FromDIP(fieldsBorder));
    sizer->Add(0, FromDIP(buttonGap), 1, wxEXPAND);
    sizer->Add(dialogControls::layButtons(replaceButton, cancelButton), 0, wxEXPAND | wxALL,
               FromDIP(dialogControls::border));
    SetSizer(sizer);
    Layout();
    sizer->Fit(this);
    Centre(wxBOTH);

    replaceButton->SetDefault();
    findText->SetFocus();
    replaceButton->Bind(wxEVT_BUTTON, &TagSearchAndReplaceDialogBase::OnReplace, this);
    cancelButton->Bind(wxEVT_BUTTON, &TagSearchAndReplaceDialogBase::OnCancel, this);
}

wxSizer* TagSearchAndReplaceDialogBase::layFields()
{
    findLabel = dialogControls::createLabel(this, "Find in Tagname");
    findText = dialogControls::createField(this, fieldWidth);
    replaceLabel = dialogControls::createLabel(this, "Replace with");
    replaceText = dialogControls::createField(this, fieldWidth);

    auto* const sizer = new wxGridSizer(2);
    const wxSizerFlags flags = wxSizerFlags().CentreVertical().Border(wxALL, FromDIP(dialogControls::border));
    sizer->Add(findLabel, flags);
    sizer->Add(findText, flags);
    sizer->Add(replaceLabel, flags);
    sizer->Add(replaceText, flags);
    return sizer;
}

void TagSearchAndReplaceDialogBase::OnReplace(wxCommandEvent&) {}

void TagSearchAndReplaceDialogBase::OnCancel(wxCommandEvent&) {}
