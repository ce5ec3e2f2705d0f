#include "ui/SettingsDialogBase.h"

#include "ui/DialogControls.h"
#include "ui/Theme.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

namespace
{

/// Pixels at which the explanation is wrapped.
constexpr int explanationWidth = 300;

/// Pixels around the whole.
constexpr int margin = 8;

/// Columns of the byte-order grid: the kind of object, bytes, words, longs.
constexpr int columns = 4;

} // namespace

SettingsDialogBase::SettingsDialogBase(wxWindow* parent, wxWindowID id, const wxString& title, const wxPoint& position,
                                       const wxSize& size)
    : wxDialog(parent, id, title, position, size, wxDEFAULT_DIALOG_STYLE)
{
    SetSizeHints(wxDefaultSize, wxDefaultSize);
    dialogControls::dress(*this);

    auto* const content = new wxBoxSizer(wxVERTICAL);
    const int border = FromDIP(dialogControls::border);
    content->Add(layHeading(), 0, wxEXPAND);
    content->Add(createExplanation(), 0, wxALL, border);
    content->Add(layByteOrder(), 0, wxEXPAND | wxTOP | wxBOTTOM, border);
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
    floatSwapBytes->SetFocus();
    byteSwapHelpButton->Bind(wxEVT_BUTTON, &SettingsDialogBase::OnByteSwapHelp, this);
    okButton->Bind(wxEVT_BUTTON, &SettingsDialogBase::OnOk, this);
    cancelButton->Bind(wxEVT_BUTTON, &SettingsDialogBase::OnCancel, this);
}

wxSizer* SettingsDialogBase::layHeading()
{
    byteSwapHelpButton = dialogControls::createHelpButton(this);

    auto* const sizer = new wxBoxSizer(wxHORIZONTAL);
    const wxSizerFlags flags = wxSizerFlags().CentreVertical().Border(wxALL, FromDIP(dialogControls::border));
    sizer->Add(dialogControls::createLabel(this, "Default Byte Ordering"), flags);
    sizer->Add(byteSwapHelpButton, flags);
    return sizer;
}

wxStaticText* SettingsDialogBase::createExplanation()
{
    auto* const text =
        new wxStaticText(this, wxID_ANY,
                         "Use this panel to set the default byte ordering applied to integer and floating point "
                         "objects copied from the source database to the modbus registers");
    text->SetFont(theme::semibold(9).Italic());
    text->SetForegroundColour(theme::colour(theme::entryText));
    text->Wrap(FromDIP(explanationWidth));
    return text;
}

wxSizer* SettingsDialogBase::layByteOrder()
{
    auto* const sizer = new wxFlexGridSizer(columns, 0, 0);
    const wxSizerFlags flags = wxSizerFlags().CentreVertical().Border(wxALL, FromDIP(dialogControls::border));
    const auto add = [sizer, flags](auto* control)
    {
        sizer->Add(control, flags);
        return control;
    };
    const auto addLabel = [this, add](const wxString& text) { return add(dialogControls::createLabel(this, text)); };
    const auto addBox = [this, add] { return add(dialogControls::createCheckBox(this)); };

    sizer->AddSpacer(0);
    addLabel("Swap");
    sizer->AddSpacer(0);
    sizer->AddSpacer(0);

    sizer->AddSpacer(0);
    addLabel("Bytes");
    addLabel("Words");
    longsHeading = addLabel("Longs");

    addLabel("Float");
    floatSwapBytes = addBox();
    floatSwapWords = addBox();
    floatSwapLongs = addBox();

    addLabel("Integer");
    intSwapBytes = addBox();
    intSwapWords = addBox();
    intSwapLongs = addBox();

    for (wxWindow* const hidden : {static_cast<wxWindow*>(longsHeading), static_cast<wxWindow*>(floatSwapLongs),
                                   static_cast<wxWindow*>(intSwapWords), static_cast<wxWindow*>(intSwapLongs)})
        hidden->Hide();
    return sizer;
}

void SettingsDialogBase::OnByteSwapHelp(wxCommandEvent&) {}

void SettingsDialogBase::OnOk(wxCommandEvent&) {}

void SettingsDialogBase::OnCancel(wxCommandEvent&) {}
