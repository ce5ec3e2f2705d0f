#include "tests/soak/DialogAnswers.h"

#include "tests/soak/WorkedFrame.h"
#include "ui/RegisterEditor.h"
#include "ui/SettingsDialog.h"
#include "ui/TagSearchAndReplaceDialog.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/msgdlg.h>
#include <wx/textctrl.h>

namespace
{

void pressCancel(wxDialog& dialog)
{
    wxCommandEvent event(wxEVT_BUTTON, wxID_CANCEL);
    event.SetEventObject(&dialog);
    dialog.HandleWindowEvent(event);
}

} // namespace

DialogAnswers::DialogAnswers(Chance& picks) : chance(picks)
{
    Register();
}

DialogAnswers::~DialogAnswers()
{
    Unregister();
}

int DialogAnswers::Enter(wxDialog* dialog)
{
    // The desktop's own boxes would be waited for; they are not shown at all.
    if (dynamic_cast<wxMessageDialogBase*>(dialog))
    {
        boxAnswer = chance.oneOf({wxID_YES, wxID_YES, wxID_NO, wxID_CANCEL});
        return boxAnswer;
    }
    dialog->CallAfter([this, dialog] { answer(*dialog); });
    return wxID_NONE;
}

void DialogAnswers::answer(wxDialog& dialog)
{
    if (auto* const editor = dynamic_cast<RegisterEditor*>(&dialog))
        edit(*editor);
    else if (auto* const asking = dynamic_cast<TagSearchAndReplaceDialog*>(&dialog))
        replace(*asking);
    else if (auto* const settings = dynamic_cast<SettingsDialog*>(&dialog))
        set(*settings);
    // Not answered yet, or refused because of what the fields hold.
    if (dialog.IsModal())
        pressCancel(dialog);
    if (dialog.IsModal())
        dialog.EndModal(wxID_CANCEL);
}

void DialogAnswers::edit(RegisterEditor& editor)
{
    if (chance.happens(60))
        editor.tagnameField->SetValue(chance.oneOf({"PUMP100_FLOW_PV", "VALVE100_POS_TXT", "NOWHERE", ""}));
    if (chance.happens(60))
        editor.typeBox->SetValue(chance.oneOf({"INT16", "INT32", "FLOAT", "DOUBLE", "STRING", "FLO"}));
    if (chance.happens(50))
        editor.lengthField->SetValue(chance.oneOf({"1", "2", "4", "10", "40", "0", "-3", "x", "70000"}));
    if (chance.happens(30))
        editor.descriptionField->SetValue("Edited " + std::to_string(chance.pick(1, 99)));
    editor.writeBox->SetValue(chance.happens(50));
    editor.swapWordsBox->SetValue(chance.happens(50));
    if (chance.happens(75))
        pressButton(*editor.okButton);
}

void DialogAnswers::replace(TagSearchAndReplaceDialog& dialog)
{
    dialog.findText->SetValue(chance.oneOf({"PUMP", "VALVE", "FLOW", "_PV", "1", "nowhere", ""}));
    dialog.replaceText->SetValue(chance.oneOf({"PUMP", "VALVE", "PRES", "_SP", "2", ""}));
    if (chance.happens(75))
        pressButton(*dialog.replaceButton);
}

void DialogAnswers::set(SettingsDialog& dialog)
{
    dialog.floatSwapWords->SetValue(chance.happens(50));
    dialog.intSwapBytes->SetValue(chance.happens(50));
    if (chance.happens(75))
        pressButton(*dialog.okButton);
}
