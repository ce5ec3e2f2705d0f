#include "ui/DialogControls.h"

#include "ui/Desktop.h"
#include "ui/Theme.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/dialog.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>

namespace
{

/// Pixels beside the text of a button.
constexpr int buttonPadding = 12;

} // namespace

namespace dialogControls
{

void dress(wxDialog& dialog)
{
    dialog.SetFont(theme::dialog());
    dialog.SetForegroundColour(theme::colour(theme::dialogText));
    dialog.SetBackgroundColour(theme::colour(theme::dialogBackground));
}

wxStaticText* createLabel(wxWindow* parent, const wxString& text)
{
    auto* const label = new wxStaticText(parent, wxID_ANY, text);
    label->SetFont(theme::semibold(10));
    label->SetForegroundColour(theme::colour(theme::title));
    // A label that is hidden while its window appears is measured in another font by the toolkit with GTK.
    label->SetMinSize(wxSize(label->GetTextExtent(text).GetWidth(), -1));
    return label;
}

wxTextCtrl* createField(wxWindow* parent, int width)
{
    auto* const field = new wxTextCtrl(parent, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxBORDER_SIMPLE);
    field->SetFont(theme::regular(9));
    field->SetForegroundColour(theme::colour(theme::entryText));
    field->SetBackgroundColour(theme::colour(theme::entryBackground));
    field->SetMinSize(wxSize(field->FromDIP(width), desktop::fieldHeight(*field)));
    return field;
}

wxCheckBox* createCheckBox(wxWindow* parent, const wxString& text)
{
    auto* const box = new wxCheckBox(parent, wxID_ANY, text);
    box->SetFont(theme::regular(9));
    box->SetForegroundColour(theme::colour(theme::entryText));
    box->SetBackgroundColour(theme::colour(theme::entryBackground));
    return box;
}

wxButton* createButton(wxWindow* parent, wxWindowID id, const wxString& text)
{
    auto* const button = new wxButton(parent, id, text, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE);
    button->SetFont(theme::regular(9));
    button->SetForegroundColour(theme::colour(theme::buttonText));
    button->SetBackgroundColour(theme::buttonBackground());
    return button;
}

void setButtonText(wxButton& button, const wxString& text)
{
    button.SetLabel(text);
    const int needed = button.GetTextExtent(text).GetWidth() + 2 * button.FromDIP(buttonPadding);
    button.SetMinSize(wxSize(std::max(needed, wxButton::GetDefaultSize(&button).GetWidth()), -1));
}

wxSizer* layButtons(wxButton* confirm, wxButton* cancel)
{
    auto* const sizer = new wxBoxSizer(wxHORIZONTAL);
    const wxSizerFlags flags = wxSizerFlags().CentreVertical().Border(wxALL, confirm->FromDIP(border));
    sizer->AddStretchSpacer();
    sizer->Add(confirm, flags);
    sizer->Add(cancel, flags);
    sizer->AddStretchSpacer();
    return sizer;
}

wxButton* createHelpButton(wxWindow* parent)
{
    auto* const button =
        new wxButton(parent, wxID_ANY, " ? ", wxDefaultPosition, wxDefaultSize, wxBORDER_NONE | wxBU_EXACTFIT);
    button->SetFont(theme::helpButton());
    button->SetForegroundColour(theme::colour(theme::helpButtonText));
    button->SetBackgroundColour(theme::colour(theme::helpButtonBackground));
    return button;
}

} // namespace dialogControls
