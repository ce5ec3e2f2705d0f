// The Esc key in the boxes that ask something. A box of Windows with Yes and No alone does not take it, and one with
// nothing but OK takes it for that.

#include "tests/ui/AnsweredBox.h"
#include "tests/ui/EditorWindow.h"
#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/grid.h>

namespace
{

constexpr std::string_view definition = "HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                        "HOLDING,00020,NONE,INT16,NOWHERE,Lost,1,UNLOCKED,OK\n";

} // namespace

TEST(MessageBox, EscIsNeitherYesNorNo)
{
    EXPECT_EQ(answerWith(WXK_ESCAPE, wxYES_NO), wxCANCEL);
    EXPECT_EQ(answerWith(WXK_ESCAPE, wxOK | wxICON_ERROR), wxCANCEL);
}

TEST(MainFrame, EscIsNoAnswerToTheSaveQuestionAndGoesBackToTheEditor)
{
    const PlantFiles files(definition);
    EditorWindow* const editor = openEditor(files.startup());
    editor->registerMap().eraseObject(RegisterSpace::Holding, 10);
    const MessageBoxKey escape(*editor, WXK_ESCAPE);
    clickOn(*editor->button("Exit without saving"));
    EXPECT_TRUE(waitUntil([&] { return escape.hasEnded(); }));
    EXPECT_EQ(escape.message(), "Save changes ?");
    EXPECT_EQ(escape.caption(), "Confirmation");
    // A closing window would be gone once what waits for the program is handled.
    editor->focusMapGrid();
    EXPECT_FALSE(editor->IsBeingDeleted());
    EXPECT_TRUE(editor->registerMap().isModified());
    EXPECT_EQ(files.definition(), definition);
}

TEST(MainFrameMoving, EscapeOnThePurgeQuestionIsANo)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    const MessageBoxKey answer(editor, WXK_ESCAPE);
    clickOn(*editor.button("Delete registers with errors"));
    ASSERT_TRUE(waitUntil([&] { return answer.hasEnded(); }));
    EXPECT_EQ(answer.message(),
              "This will delete all registers that contain an error.\nAre you sure you want to continue?");
    EXPECT_EQ(answer.caption(), "Confirmation");
    EXPECT_EQ(answer.parent(), &editor);
    ASSERT_TRUE(waitUntil([&] { return editor.IsActive(); }));
    editor.nextView();
    EXPECT_FALSE(editor.registerMap().isModified());
}
