// The layout of the register editor: a label and a control in each row, a line for what the space check says, and the
// two buttons.

#include "ui/RegisterEditorBase.h"

#include "ui/Desktop.h"
#include "ui/Theme.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace
{

/// Pixels of the type box, and of the length field beneath it.
constexpr int typeWidth = 150;

/// Characters of a tagname or a description that are seen at once.
constexpr int textLength = 60;

} // namespace

RegisterEditorBase::RegisterEditorBase(wxWindow* parent, wxWindowID id, const wxString& title, const wxPoint& position,
                                       const wxSize& size)
    : DialogBase(parent, id, title, position, size)
{
    auto* const content = new wxBoxSizer(wxVERTICAL);
    content->Add(layFields(), 0, wxEXPAND);
    createStatusLabel();
    content->AddStretchSpacer();
    content->Add(statusLabel, 0, wxEXPAND | wxALL, FromDIP(border));
    content->AddStretchSpacer();
    // Before Cancel, so that the Tab key reaches it first.
    okButton = createButton(wxID_OK, "Ok");
    content->Add(layEnding(okButton), 0, wxEXPAND);
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(content, 1, wxEXPAND | wxALL, FromDIP(margin));
    lay(sizer);

    // A register that is edited mostly gets another tag.
    tagnameField->SetFocus();
    connectEvents();
}

wxSizer* RegisterEditorBase::layFields()
{
    auto* const sizer = new wxFlexGridSizer(2, 0, 0);
    // Labels take what their texts need, controls the rest.
    sizer->AddGrowableCol(1);
    const wxSizerFlags flags = wxSizerFlags().CentreVertical().Border(wxALL, FromDIP(border));
    const wxSizerFlags wide = wxSizerFlags().Expand().Border(wxALL, FromDIP(border));
    const auto addLabel = [this, sizer, flags](const wxString& text)
    {
        wxStaticText* const label = createLabel(text);
        sizer->Add(label, flags);
        return label;
    };

    addLabel("Tagname");
    tagnameField = createField("Tagname", fieldWidthFor(textLength));
    // The definition file has no quotes, so a comma in a name would end its field.
    tagnameField->SetToolTip("a name of the tag database, without a comma or a line break");
    sizer->Add(tagnameField, wide);

    addLabel("Type");
    createTypeBox();
    sizer->Add(typeBox, flags);

    lengthLabel = addLabel("Length");
    lengthField = createField("Length", FromDIP(typeWidth));
    // The unit is not what one expects of a text.
    lengthField->SetToolTip("registers, 2 characters each");
    sizer->Add(lengthField, flags);

    addLabel("Write");
    writeBox = createBareCheckBox("Write");
    sizer->Add(writeBox, flags);

    byteOrderLabel = addLabel("Byte Order");
    sizer->Add(layByteOrder(), flags);

    addLabel("Description");
    descriptionField = createField("Description", fieldWidthFor(textLength));
    // As for the name.
    descriptionField->SetToolTip("no comma and no line break, or the line is not read again");
    sizer->Add(descriptionField, wide);
    return sizer;
}

void RegisterEditorBase::createTypeBox()
{
    // It may be typed into: who knows the type is quicker that way.
    typeBox = new wxComboBox(this, wxID_ANY, wxString(), wxDefaultPosition, FromDIP(wxSize(typeWidth, -1)), 0, nullptr,
                             wxCB_DROPDOWN | wxBORDER_NONE);
    typeBox->SetFont(theme::regular(9));
    typeBox->SetForegroundColour(theme::colour(theme::entryText));
    typeBox->SetBackgroundColour(theme::colour(theme::entryBackground));
    desktop::keepOneTabStop(*typeBox);
    desktop::setAccessibleName(*typeBox, "Type");
}

wxSizer* RegisterEditorBase::layByteOrder()
{
    swapBytesBox = createCheckBox("Swap Bytes");
    swapWordsBox = createCheckBox("Swap Words");
    swapLongsBox = createCheckBox("Swap Longs");
    byteSwapHelpButton = createHelpButton();

    auto* const sizer = new wxBoxSizer(wxHORIZONTAL);
    const wxSizerFlags flags = wxSizerFlags().CentreVertical().Border(wxRIGHT, 2 * FromDIP(border));
    sizer->Add(swapBytesBox, flags);
    sizer->Add(swapWordsBox, flags);
    sizer->Add(swapLongsBox, flags);
    sizer->Add(byteSwapHelpButton, wxSizerFlags().CentreVertical());
    return sizer;
}

void RegisterEditorBase::createStatusLabel()
{
    // The text is never seen: the space check has written another one before the dialog appears.
    statusLabel = new wxStaticText(this, wxID_ANY, "fhjfghj", wxDefaultPosition, wxDefaultSize,
                                   wxALIGN_CENTRE_HORIZONTAL | wxST_NO_AUTORESIZE);
    statusLabel->SetFont(theme::semibold(10));
    statusLabel->SetForegroundColour(theme::colour(theme::statusWarning));
    statusLabel->SetBackgroundColour(theme::colour(theme::dialogBackground));
}

void RegisterEditorBase::connectEvents()
{
    // A type is chosen from the list or typed, and a value set by the program counts as typed.
    typeBox->Bind(wxEVT_COMBOBOX, &RegisterEditorBase::OnTypeChanged, this);
    typeBox->Bind(wxEVT_TEXT, &RegisterEditorBase::OnTypeChanged, this);
    lengthField->Bind(wxEVT_TEXT, &RegisterEditorBase::OnLengthChanged, this);
    okButton->Bind(wxEVT_BUTTON, &RegisterEditorBase::OnOk, this);
}

// The layout has no behaviour; the editor that derives from it has.
void RegisterEditorBase::OnTypeChanged(wxCommandEvent&) {}

void RegisterEditorBase::OnLengthChanged(wxCommandEvent&) {}

void RegisterEditorBase::OnOk(wxCommandEvent&) {}
