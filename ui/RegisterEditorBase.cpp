#include "ui/RegisterEditorBase.h"

#include "ui/DialogControls.h"
#include "ui/Theme.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace
{

/// Pixels around the whole.
constexpr int margin = 8;

/// Pixels of the type box, and of the length field beneath it.
constexpr int typeWidth = 150;

/// Pixels that a tagname or a description has at least.
constexpr int textWidth = 380;

} // namespace

RegisterEditorBase::RegisterEditorBase(wxWindow* parent, wxWindowID id, const wxString& title, const wxPoint& position,
                                       const wxSize& size)
    : wxDialog(parent, id, title, position, size, wxDEFAULT_DIALOG_STYLE)
{
    SetSizeHints(wxDefaultSize, wxDefaultSize);
    dialogControls::dress(*this);

    auto* const content = new wxBoxSizer(wxVERTICAL);
    content->Add(layFields(), 0, wxEXPAND);
    createStatusLabel();
    content->AddStretchSpacer();
    content->Add(statusLabel, 0, wxEXPAND | wxALL, FromDIP(dialogControls::border));
    content->AddStretchSpacer();
    okButton = dialogControls::createButton(this, wxID_OK, "Ok");
    cancelButton = dialogControls::createButton(this, wxID_CANCEL, "Cancel");
    content->Add(dialogControls::layButtons(okButton, cancelButton), 0, wxEXPAND);
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(content, 1, wxEXPAND | wxALL, FromDIP(margin));
    SetSizer(sizer);
    Layout();
    sizer->Fit(this);
    CentreOnParent();

    okButton->SetDefault();
    tagnameField->SetFocus();
    connectEvents();
}

wxSizer* RegisterEditorBase::layFields()
{
    auto* const sizer = new wxFlexGridSizer(2, 0, 0);
    sizer->AddGrowableCol(1);
    const wxSizerFlags flags = wxSizerFlags().CentreVertical().Border(wxALL, FromDIP(dialogControls::border));
    const wxSizerFlags wide = wxSizerFlags().Expand().Border(wxALL, FromDIP(dialogControls::border));
    const auto addLabel = [this, sizer, flags](const wxString& text)
    {
        wxStaticText* const label = dialogControls::createLabel(this, text);
        sizer->Add(label, flags);
        return label;
    };

    addLabel("Tagname");
    tagnameField = dialogControls::createField(this, textWidth);
    sizer->Add(tagnameField, wide);

    addLabel("Type");
    createTypeBox();
    sizer->Add(typeBox, flags);

    lengthLabel = addLabel("Length");
    lengthField = dialogControls::createField(this, typeWidth);
    sizer->Add(lengthField, flags);

    addLabel("Write");
    writeBox = dialogControls::createCheckBox(this);
    sizer->Add(writeBox, flags);

    byteOrderLabel = addLabel("Byte Order");
    sizer->Add(layByteOrder(), flags);

    addLabel("Description");
    descriptionField = dialogControls::createField(this, textWidth);
    sizer->Add(descriptionField, wide);
    return sizer;
}

void RegisterEditorBase::createTypeBox()
{
    typeBox = new wxComboBox(this, wxID_ANY, wxString(), wxDefaultPosition, FromDIP(wxSize(typeWidth, -1)), 0, nullptr,
                             wxCB_DROPDOWN | wxBORDER_NONE);
    typeBox->SetFont(theme::regular(9));
    typeBox->SetForegroundColour(theme::colour(theme::entryText));
    typeBox->SetBackgroundColour(theme::colour(theme::entryBackground));
}

wxSizer* RegisterEditorBase::layByteOrder()
{
    swapBytesBox = dialogControls::createCheckBox(this, "Swap Bytes");
    swapWordsBox = dialogControls::createCheckBox(this, "Swap Words");
    swapLongsBox = dialogControls::createCheckBox(this, "Swap Longs");
    byteSwapHelpButton = dialogControls::createHelpButton(this);

    auto* const sizer = new wxBoxSizer(wxHORIZONTAL);
    const wxSizerFlags flags = wxSizerFlags().CentreVertical().Border(wxRIGHT, 2 * FromDIP(dialogControls::border));
    sizer->Add(swapBytesBox, flags);
    sizer->Add(swapWordsBox, flags);
    sizer->Add(swapLongsBox, flags);
    sizer->Add(byteSwapHelpButton, wxSizerFlags().CentreVertical());
    return sizer;
}

void RegisterEditorBase::createStatusLabel()
{
    statusLabel = new wxStaticText(this, wxID_ANY, "fhjfghj", wxDefaultPosition, wxDefaultSize,
                                   wxALIGN_CENTRE_HORIZONTAL | wxST_NO_AUTORESIZE);
    statusLabel->SetFont(theme::semibold(10));
    statusLabel->SetForegroundColour(theme::colour(theme::statusWarning));
    statusLabel->SetBackgroundColour(theme::colour(theme::dialogBackground));
}

void RegisterEditorBase::connectEvents()
{
    typeBox->Bind(wxEVT_COMBOBOX, &RegisterEditorBase::OnTypeChanged, this);
    typeBox->Bind(wxEVT_TEXT, &RegisterEditorBase::OnTypeChanged, this);
    lengthField->Bind(wxEVT_TEXT, &RegisterEditorBase::OnLengthChanged, this);
    byteSwapHelpButton->Bind(wxEVT_BUTTON, &RegisterEditorBase::OnByteSwapHelp, this);
    okButton->Bind(wxEVT_BUTTON, &RegisterEditorBase::OnOk, this);
    cancelButton->Bind(wxEVT_BUTTON, &RegisterEditorBase::OnCancel, this);
}

void RegisterEditorBase::OnTypeChanged(wxCommandEvent&) {}

void RegisterEditorBase::OnLengthChanged(wxCommandEvent&) {}

void RegisterEditorBase::OnByteSwapHelp(wxCommandEvent&) {}

void RegisterEditorBase::OnOk(wxCommandEvent&) {}

void RegisterEditorBase::OnCancel(wxCommandEvent&) {}
