// Working the source side without a mouse.

#include "tests/ui/SourceSide.h"
#include "tests/ui/UiTest.h"
#include "ui/ToolkitText.h"

#include <gtest/gtest.h>
#include <wx/grid.h>
#include <wx/textctrl.h>

TEST(SourceKeyboard, EscapeInTheFilterFieldClearsIt)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    typeOver(*editor.sourceFilter, "maker");
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == Names({"PUMP_NAME"}); }));
    pressKey(WXK_ESCAPE);
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == allTags; }));
    EXPECT_EQ(editor.sourceFilter->GetValue(), "");
    EXPECT_TRUE(editor.sourceFilter->HasFocus());
}

TEST(SourceKeyboard, DownInTheFilterFieldGoesIntoTheList)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    typeOver(*editor.sourceFilter, "tank");
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == Names({"TANK_LEVEL", "TANK_HIGH"}); }));
    pressKey(WXK_DOWN);
    EXPECT_TRUE(waitUntil([&] { return editor.sourceGrid->GetGridWindow()->HasFocus(); }));
    EXPECT_EQ(editor.sourceGrid->GetGridCursorRow(), 0);
    EXPECT_EQ(editor.sourceFilter->GetValue(), "tank");
}

TEST(SourceKeyboard, DownStaysInTheFilterFieldWhileTheListIsEmpty)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    typeOver(*editor.sourceFilter, "nothing");
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor).empty(); }));
    pressKey(WXK_DOWN);
    pressKey('X');
    EXPECT_TRUE(waitUntil([&] { return modelText(editor.sourceFilter->GetValue()) == "nothingx"; }));
}
