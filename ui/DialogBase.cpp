// The dark look of the dialogs, and the two buttons at their end. Every control gets its colours when it is made: the
// toolkit hands down those of a parent to some kinds of controls only.

#include "ui/DialogBase.h"

#include "ui/ByteSwapHelp.h"
#include "ui/Desktop.h"
#include "ui/Theme.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>

namespace
{

/// Pixels beside the text of a button, and above and below it.
constexpr int buttonPadding = 12;
constexpr int buttonHeightPadding = 6;

/// Pixels between the border of a field and its text.
constexpr int fieldPadding = 10;

} // namespace

DialogBase::DialogBase(wxWindow* parent, wxWindowID id, const wxString& title, const wxPoint& position,
                       const wxSize& size)
    : wxDialog(parent, id, title, position, size, wxDEFAULT_DIALOG_STYLE)
{
    // A dialog is as large as its content, whatever that is in the font in use.
    SetSizeHints(wxDefaultSize, wxDefaultSize);
    // Before the first control: what has no font of its own takes this one when it is created.
    SetFont(theme::dialog());
    SetForegroundColour(theme::colour(theme::dialogText));
    SetBackgroundColour(theme::colour(theme::dialogBackground));
}

void DialogBase::OnCancel(wxCommandEvent&)
{
    EndModal(wxID_CANCEL);
}

void DialogBase::OnByteSwapHelp(wxCommandEvent&)
{
    showByteSwapHelp();
}

wxStaticText* DialogBase::createLabel(const wxString& text)
{
    auto* const label = new wxStaticText(this, wxID_ANY, text);
    label->SetFont(theme::semibold(10));
    label->SetForegroundColour(theme::colour(theme::title));
    // A label that is hidden while its window appears is measured in another font by the toolkit with GTK.
    label->SetMinSize(wxSize(label->GetTextExtent(text).GetWidth(), -1));
    return label;
}

wxTextCtrl* DialogBase::createField(const wxString& name, int width)
{
    auto* const field = new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxBORDER_SIMPLE);
    field->SetFont(theme::regular(9));
    field->SetForegroundColour(theme::colour(theme::entryText));
    field->SetBackgroundColour(theme::colour(theme::entryBackground));
    field->SetMinSize(wxSize(width, desktop::fieldHeight(*field)));
    desktop::setAccessibleName(*field, name);
    return field;
}

int DialogBase::fieldWidthFor(int characters) const
{
    // The dialog has another font than its fields, so the font is named.
    const wxFont font = theme::regular(9);
    int width = 0;
    int height = 0;
    // As wide as capital letters are on average.
    GetTextExtent(wxString('N', static_cast<std::size_t>(characters)), &width, &height, nullptr, nullptr, &font);
    return width + 2 * FromDIP(fieldPadding);
}

wxCheckBox* DialogBase::createCheckBox(const wxString& text)
{
    auto* const box = new wxCheckBox(this, wxID_ANY, text);
    box->SetFont(theme::regular(9));
    box->SetForegroundColour(theme::colour(theme::entryText));
    box->SetBackgroundColour(theme::colour(theme::entryBackground));
    return box;
}

wxCheckBox* DialogBase::createBareCheckBox(const wxString& name)
{
    wxCheckBox* const box = createCheckBox(wxString());
    desktop::setAccessibleName(*box, name);
    return box;
}

wxButton* DialogBase::createButton(wxWindowID id, const wxString& text)
{
    // Created without its text, which decides about the size and so has to come after the font.
    auto* const button = desktop::createButton(this, id, wxString(), wxBORDER_NONE);
    button->SetFont(theme::regular(9));
    button->SetForegroundColour(theme::colour(theme::buttonText));
    button->SetBackgroundColour(theme::buttonBackground());
    setButtonText(*button, text);
    return button;
}

void DialogBase::setButtonText(wxButton& button, const wxString& text)
{
    button.SetLabel(text);
    // Toolkit 3.2 measures a button of GTK before it has its font, so that larger texts would be cut.
    const wxSize padding = 2 * button.FromDIP(wxSize(buttonPadding, buttonHeightPadding));
    wxSize size = button.GetTextExtent(text) + padding;
    // Not narrower than buttons of this desktop are: "Ok" alone would be hard to hit.
    size.SetWidth(std::max(size.GetWidth(), wxButton::GetDefaultSize(&button).GetWidth()));
    button.SetMinSize(size);
}

wxButton* DialogBase::createHelpButton()
{
    auto* const button =
        // It stands beside a text and is no larger than that.
        desktop::createButton(this, wxID_ANY, " ? ", wxBORDER_NONE | wxBU_EXACTFIT);
    button->SetFont(theme::helpButton());
    button->SetForegroundColour(theme::colour(theme::helpButtonText));
    button->SetBackgroundColour(theme::colour(theme::helpButtonBackground));
    button->SetToolTip("Shows what the swaps do");
    button->Bind(wxEVT_BUTTON, &DialogBase::OnByteSwapHelp, this);
    return button;
}

wxSizer* DialogBase::layEnding(wxButton* confirm)
{
    cancelButton = createButton(wxID_CANCEL, "Cancel");
    cancelButton->Bind(wxEVT_BUTTON, &DialogBase::OnCancel, this);
    // Enter confirms from any field: an engineer types one register after the other.
    confirm->SetDefault();

    auto* const sizer = new wxBoxSizer(wxHORIZONTAL);
    const wxSizerFlags flags = wxSizerFlags().CentreVertical().Border(wxALL, FromDIP(border));
    sizer->AddStretchSpacer();
    sizer->Add(confirm, flags);
    sizer->Add(cancelButton, flags);
    sizer->AddStretchSpacer();
    return sizer;
}

void DialogBase::lay(wxSizer* content)
{
    desktop::showFocusAtOnce(*this);
    desktop::darken(*this);
    SetSizer(content);
    Layout();
    content->Fit(this);
    // Last, when the size is known.
    Centre(wxBOTH);
}
