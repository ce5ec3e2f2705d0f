// The layout of the settings dialog: a heading, what the settings are for, and a table of check boxes.

#include "ui/SettingsDialogBase.h"

#include "ui/Theme.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <algorithm>

namespace
{

/// Pixels at which the explanation is wrapped; with larger texts the heading is wider.
constexpr int explanationWidth = 300;

/// Columns of the byte-order grid: the kind of object, bytes, words, longs.
constexpr int columns = 4;

} // namespace

SettingsDialogBase::SettingsDialogBase(wxWindow* parent, wxWindowID id, const wxString& title, const wxPoint& position,
                                       const wxSize& size)
    : DialogBase(parent, id, title, position, size)
{
    auto* const content = new wxBoxSizer(wxVERTICAL);
    wxSizer* const heading = layHeading();
    content->Add(heading, 0, wxEXPAND);
    content->Add(createExplanation(heading->GetMinSize().GetWidth()), 0, wxALL, FromDIP(border));
    content->Add(layByteOrder(), 0, wxEXPAND | wxTOP | wxBOTTOM, FromDIP(border));
    okButton = createButton(wxID_OK, "Ok");
    content->Add(layEnding(okButton), 0, wxEXPAND);
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(content, 1, wxEXPAND | wxALL, FromDIP(margin));
    lay(sizer);

    // The settings can be made without the mouse, starting here.
    floatSwapBytes->SetFocus();
    okButton->Bind(wxEVT_BUTTON, &SettingsDialogBase::OnOk, this);
}

wxSizer* SettingsDialogBase::layHeading()
{
    byteSwapHelpButton = createHelpButton();

    auto* const sizer = new wxBoxSizer(wxHORIZONTAL);
    const wxSizerFlags flags = wxSizerFlags().CentreVertical().Border(wxALL, FromDIP(border));
    sizer->Add(createLabel("Default Byte Ordering"), flags);
    sizer->Add(byteSwapHelpButton, flags);
    return sizer;
}

wxStaticText* SettingsDialogBase::createExplanation(int leastWidth)
{
    auto* const text =
        new wxStaticText(this, wxID_ANY,
                         "Use this panel to set the default byte ordering applied to integer and floating point "
                         "objects copied from the source database to the modbus registers");
    text->SetFont(theme::semibold(9).Italic());
    text->SetForegroundColour(theme::colour(theme::entryText));
    // A text does not wrap by itself, and the dialog is as wide as its content.
    text->Wrap(std::max(FromDIP(explanationWidth), leastWidth));
    return text;
}

wxSizer* SettingsDialogBase::layByteOrder()
{
    auto* const sizer = new wxFlexGridSizer(columns, 0, 0);
    const wxSizerFlags flags = wxSizerFlags().CentreVertical().Border(wxALL, FromDIP(border));
    const auto add = [sizer, flags](auto* control)
    {
        sizer->Add(control, flags);
        return control;
    };
    const auto addLabel = [this, add](const wxString& text) { return add(createLabel(text)); };
    // Boxes have no text: the row and the column say what they are. A screen reader is told both.
    const auto addBox = [this, add](const wxString& name) { return add(createBareCheckBox(name)); };

    // An empty spacer fills a cell of the table that shows nothing.
    sizer->AddSpacer(0);
    addLabel("Swap");
    sizer->AddSpacer(0);
    sizer->AddSpacer(0);

    sizer->AddSpacer(0);
    addLabel("Bytes");
    addLabel("Words");
    longsHeading = addLabel("Longs");

    addLabel("Float");
    floatSwapBytes = addBox("Float Bytes");
    floatSwapWords = addBox("Float Words");
    floatSwapLongs = addBox("Float Longs");

    addLabel("Integer");
    intSwapBytes = addBox("Integer Bytes");
    intSwapWords = addBox("Integer Words");
    intSwapLongs = addBox("Integer Longs");

    // Tags become INT16 or FLOAT: one register has bytes to swap, two have words as well, and nothing here has longs.
    for (wxWindow* const hidden : {static_cast<wxWindow*>(longsHeading), static_cast<wxWindow*>(floatSwapLongs),
                                   static_cast<wxWindow*>(intSwapWords), static_cast<wxWindow*>(intSwapLongs)})
        hidden->Hide();
    return sizer;
}

// The layout has no behaviour; the dialog that derives from it ends itself.
void SettingsDialogBase::OnOk(wxCommandEvent&) {}
