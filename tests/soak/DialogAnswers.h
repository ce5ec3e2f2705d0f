#pragma once

#include "tests/core/Chance.h"

#include <wx/defs.h>
#include <wx/modalhook.h>

class RegisterEditor;
class SettingsDialog;
class TagSearchAndReplaceDialog;

/// Answers every dialog and message box while it exists, as chance will have it: fields are filled, and Ok, Cancel or
/// another button is pressed.
class DialogAnswers : private wxModalDialogHook
{
public:
    /// @param picks  outlives this
    explicit DialogAnswers(Chance& picks);
    ~DialogAnswers() override;

    /// Identifier of the button that the last message box was answered with; wxID_NONE before the first one.
    int lastBoxAnswer() const { return boxAnswer; }

protected:
    int Enter(wxDialog* dialog) override;

private:
    void answer(wxDialog& dialog);
    void edit(RegisterEditor& editor);
    void replace(TagSearchAndReplaceDialog& dialog);
    void set(SettingsDialog& dialog);

    Chance& chance;
    int boxAnswer = wxID_NONE;
};
