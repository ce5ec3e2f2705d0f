// The layout of the dialog that renames tags: two fields with their labels, and the buttons.

#include "ui/TagSearchAndReplaceDialogBase.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace
{

/// Characters of a field that are seen at once, enough for most tagnames.
constexpr int textLength = 24;

/// Pixels between fields and buttons.
constexpr int buttonGap = 10;

} // namespace

TagSearchAndReplaceDialogBase::TagSearchAndReplaceDialogBase(wxWindow* parent, wxWindowID id, const wxString& title,
                                                             const wxPoint& position, const wxSize& size)
    : DialogBase(parent, id, title, position, size)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    wxSizer* const fields = layFields();
    replaceButton = createButton(wxID_OK, "Replace");
    sizer->Add(fields, 0, wxEXPAND | wxALL, FromDIP(margin));
    sizer->Add(0, FromDIP(buttonGap), 1, wxEXPAND);
    sizer->Add(layEnding(replaceButton), 0, wxEXPAND | wxALL, FromDIP(border));
    lay(sizer);

    // What is to be found is typed first.
    findText->SetFocus();
    replaceButton->Bind(wxEVT_BUTTON, &TagSearchAndReplaceDialogBase::OnReplace, this);
}

wxSizer* TagSearchAndReplaceDialogBase::layFields()
{
    findLabel = createLabel("Find in Tagname");
    findText = createField(findLabel->GetLabel(), fieldWidthFor(textLength));
    replaceLabel = createLabel("Replace with");
    replaceText = createField(replaceLabel->GetLabel(), fieldWidthFor(textLength));

    // Two columns of one width: the fields stand below each other and are of one size.
    auto* const sizer = new wxGridSizer(2);
    const wxSizerFlags flags = wxSizerFlags().CentreVertical().Border(wxALL, FromDIP(border));
    sizer->Add(findLabel, flags);
    sizer->Add(findText, flags);
    sizer->Add(replaceLabel, flags);
    sizer->Add(replaceText, flags);
    return sizer;
}

void TagSearchAndReplaceDialogBase::OnReplace(wxCommandEvent&) {}
