// What the register editor does: it shows the fields that a type has, says at every change whether the length fits, and
// takes Ok only for an edit that can be applied. The answers come from the rules in map/RegisterEdit; here they become
// controls.

#include "ui/RegisterEditor.h"

#include "source/TagNames.h"
#include "ui/MessageBox.h"
#include "ui/NameOffers.h"
#include "ui/ToolkitText.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/valnum.h>

namespace
{

/// Pixels to spare beside the longest status text: a window manager may take a few off the dialog.
constexpr int statusMargin = 20;

/// Names in the list below the tagname: more than anybody reads.
constexpr std::size_t mostOffers = 100;

constexpr const char* tooLongText = "Insufficient space - please correct register type or size";
constexpr const char* movingText = "Insufficient space - registers will be moved down to create room";
constexpr const char* noLengthText = "String length must be greater than zero";

constexpr const char* okText = "Ok";
constexpr const char* okMovingText = "Ok (see warning)";

} // namespace

RegisterEditor::RegisterEditor(wxWindow* parent, wxWindowID id, const wxString& title)
    : RegisterEditorBase(parent, id, title)
{
    // Another text may be typed too; the edit then makes an INT16 of it.
    for (const DataType type : allDataTypes)
        typeBox->Append(toolkitText(typeName(type)));
    // It keeps letters out. Which numbers are allowed is a question of the room, and asked at every change.
    lengthField->SetValidator(wxIntegerValidator<int>());

    // The dialog stays as large as it is from here on, so it has to have room for all rows and the longest text.
    const wxSize longest = statusLabel->GetTextExtent(movingText);
    statusLabel->SetMinSize(longest + wxSize(FromDIP(statusMargin), 0));
    Fit();
    // Toolkit 3.2 fits a dialog of GTK once more when it is shown, to the rows that are seen then.
    GetSizer()->SetMinSize(GetClientSize());
    CentreOnParent();

    // Only a STRING shows them; DOUBLE leaves the field as the type before it had it.
    lengthLabel->Hide();
    lengthField->Hide();
}

void RegisterEditor::showEntry(const RegisterEntry& entry, EditRoom entryRoom)
{
    tagnameField->SetValue(toolkitText(entry.tagname.view()));
    descriptionField->SetValue(toolkitText(entry.description.view()));
    swapBytesBox->SetValue(entry.SwapBytes);
    swapWordsBox->SetValue(entry.SwapWords);
    swapLongsBox->SetValue(entry.SwapLongs);
    writeBox->SetValue(entry.write);
    // The type writes a length of its own; the object's length comes last and is the one that is checked.
    typeBox->SetValue(toolkitText(typeName(entry.type)));
    room = entryRoom;
    lengthField->SetValue(wxString::Format("%i", static_cast<std::int32_t>(entry.registerCount)));
    // Typing replaces the name at once.
    tagnameField->SelectAll();
}

void RegisterEditor::offerTagnames(const TagTable& tags)
{
    offerNames(*tagnameField,
               [&tags](const wxString& typed)
               {
                   std::vector<wxString> names;
                   for (const InternedText name : namesBeginningWith(tags, modelText(typed), mostOffers))
                       names.push_back(toolkitText(name.view()));
                   return names;
               });
}

EditedRegister RegisterEditor::editedRegister() const
{
    // Boxes that are hidden are read as well. The edit drops the flags that its type cannot carry.
    return {.tagname = modelText(tagnameField->GetValue()),
            .description = modelText(descriptionField->GetValue()),
            .typeName = modelText(typeBox->GetValue()),
            .write = writeBox->IsChecked(),
            .SwapBytes = swapBytesBox->IsChecked(),
            .SwapWords = swapWordsBox->IsChecked(),
            .SwapLongs = swapLongsBox->IsChecked(),
            .registerCount = parseLength(modelText(lengthField->GetValue())).value_or(0)};
}

void RegisterEditor::showFieldsFor(const FieldVisibility& visibility)
{
    lengthLabel->Show(visibility.lengthLabel);
    // The label of the length goes with DOUBLE and the field stays as it was: after STRING it stands there alone.
    lengthField->Show(visibility.lengthField.value_or(lengthField->IsShown()));
    byteOrderLabel->Show(visibility.byteOrder);
    swapBytesBox->Show(visibility.SwapBytes);
    swapWordsBox->Show(visibility.SwapWords);
    swapLongsBox->Show(visibility.SwapLongs);
    byteSwapHelpButton->Show(visibility.byteOrder);
}

void RegisterEditor::offerOk(const wxString& text)
{
    setButtonText(*okButton, text);
    okButton->Show();
    // A button that is hidden may stop being the one that the Enter key presses, as it does with GTK.
    okButton->SetDefault();
}

void RegisterEditor::layAnew()
{
    Layout();
    // Windows moves the pixels of controls that change places, those of the control that covered them included.
    Refresh();
}

void RegisterEditor::OnTypeChanged(wxCommandEvent&)
{
    const std::string type = modelText(typeBox->GetValue());
    // Every type starts with its own count, a STRING with 1. Setting it also checks the room.
    lengthField->SetValue(wxString::Format("%d", registerCountFor(type, "1")));
    if (const std::optional<FieldVisibility> visibility = visibilityFor(type))
        showFieldsFor(*visibility);
    layAnew();
}

void RegisterEditor::OnLengthChanged(wxCommandEvent&)
{
    switch (checkSpace(modelText(lengthField->GetValue()), room))
    {
    case SpaceCheck::TooLong:
        statusLabel->SetLabel(tooLongText);
        // There is no length to confirm. Cancel is always there.
        okButton->Hide();
        break;
    case SpaceCheck::Fits:
        statusLabel->SetLabel(wxString());
        offerOk(okText);
        break;
    case SpaceCheck::FitsByMoving:
        statusLabel->SetLabel(movingText);
        offerOk(okMovingText);
        break;
    }
    layAnew();
}

void RegisterEditor::OnOk(wxCommandEvent&)
{
    // A default button that is hidden may still be pressed by the Enter key.
    if (!okButton->IsShown())
        return;
    // An object without a name is not applied, so Ok ends like Cancel then. A name of blanks is a name.
    switch (confirmEdit(modelText(tagnameField->GetValue()), modelText(lengthField->GetValue())))
    {
    case EditConfirmation::Apply:
        EndModal(wxID_OK);
        break;
    case EditConfirmation::Cancel:
        EndModal(wxID_CANCEL);
        break;
    case EditConfirmation::NoLength:
        messageBox(noLengthText, wxMessageBoxCaptionStr, wxOK | wxCENTRE, this);
        break;
    }
}
