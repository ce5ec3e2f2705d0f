#include "tests/ui/MenuScript.h"
#include "tests/ui/SourceSide.h"
#include "tests/ui/UiTest.h"
#include "ui/grid/GridSelection.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/checkbox.h>
#include <wx/grid.h>
#include <wx/scrolwin.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

TEST(SourceBrowser, ShowsAllTagsAtFirst)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    EXPECT_EQ(shownTags(editor), allTags);
    EXPECT_EQ(editor.sourceGrid->GetColSize(5), 0);
    EXPECT_EQ(editor.sourceGrid->GetCellValue(4, 5), "4");
}

TEST(SourceBrowser, RowsSayTypeSizeFlagsAndDescriptionInTheirColours)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const wxGrid& grid = *editor.sourceGrid;
    EXPECT_EQ(grid.GetCellValue(0, 1), "Integer");
    EXPECT_EQ(grid.GetCellTextColour(0, 1), wxColour(128, 128, 0));
    EXPECT_EQ(grid.GetCellValue(1, 1), "Float");
    EXPECT_EQ(grid.GetCellTextColour(1, 1), wxColour(68, 128, 128));
    EXPECT_EQ(grid.GetCellValue(3, 1), "String");
    EXPECT_EQ(grid.GetCellTextColour(3, 1), wxColour(0, 128, 0));
    EXPECT_EQ(grid.GetCellValue(3, 2), "6");
    EXPECT_EQ(grid.GetCellValue(0, 3), "");
    EXPECT_EQ(grid.GetCellValue(5, 3), "ALM-SET");
    EXPECT_EQ(grid.GetCellTextColour(5, 3), wxColour(255, 217, 0));
    EXPECT_EQ(grid.GetCellValue(5, 4), "Level high");
}

TEST(SourceBrowser, TypingNarrowsByNameAndDescriptionInAnyLetterCase)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    typeOver(*editor.sourceFilter, "speed");
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == Names({"PUMP_SPEED", "PUMP_SPEED_SP"}); }));
    typeOver(*editor.sourceFilter, "MAKER");
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == Names({"PUMP_NAME"}); }));
    typeOver(*editor.sourceFilter, "p?mp_s*sp");
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == Names({"PUMP_SPEED_SP"}); }));
    typeOver(*editor.sourceFilter, "nothing");
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor).empty(); }));
}

TEST(SourceBrowser, CheckedGroupsHaveToBeSharedAll)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    ASSERT_NE(groupBox(editor, "SET"), nullptr);
    EXPECT_FALSE(groupBox(editor, "SET")->IsChecked());
    clickOn(*groupBox(editor, "SET"));
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == Names({"PUMP_SPEED_SP", "TANK_HIGH"}); }));
    clickOn(*groupBox(editor, "ALM"));
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == Names({"TANK_HIGH"}); }));
    clickOn(*groupBox(editor, "SET"));
    clickOn(*groupBox(editor, "ALM"));
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == allTags; }));
}

TEST(SourceBrowser, ThirtyThirdGroupGetsNoCheckBoxAndLabelsAreLiteral)
{
    const TempFolder folder;
    std::string groups;
    for (int i = 0; i < 33; ++i)
        groups += (i == 0 ? "" : ",") + (R"({"mask": "1", "flag": "A&B)" + std::to_string(i) + R"(", "desc": "R&D"})");
    const auto database = folder.write("groups.json", "{\"database_groups\": [" + groups +
                                                          "], \"structure\": [{\"lable\": \"\"}], \"database\": []}");
    const EditorWindow& editor = *openEditor({database.string(), "", 0});
    EXPECT_NE(groupBox(editor, "A&B31"), nullptr);
    EXPECT_EQ(groupBox(editor, "A&B32"), nullptr);
    EXPECT_EQ(editor.groupFilters->GetChildren().size(), 64U);
    const auto* const text = dynamic_cast<wxStaticText*>(editor.groupFilters->GetChildren()[1]);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->GetLabelText(), "R&D");
    EXPECT_EQ(text->GetForegroundColour(), wxColour(224, 224, 224));
    EXPECT_EQ(groupBox(editor, "A&B0")->GetForegroundColour(), wxColour(255, 217, 0));
}

TEST(SourceBrowser, ControlAAndControlCCopyEveryShownTag)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup(6));
    focusTagGrid(editor);
    pressKey('A', wxMOD_CONTROL);
    EXPECT_TRUE(waitUntil([&] { return selectedRows(*editor.sourceGrid).size() == allTags.size(); }));
    pressKey('C', wxMOD_CONTROL);
    EXPECT_TRUE(waitUntil([&] { return editor.registerMap().clipboard.size() == 11; }));
    EXPECT_EQ(clipboardNames(editor),
              Names({"PUMP_RUN", "PUMP_SPEED", "PUMP_SPEED", "PUMP_SPEED_SP", "PUMP_SPEED_SP", "PUMP_NAME", "PUMP_NAME",
                     "PUMP_NAME", "TANK_LEVEL", "TANK_LEVEL", "TANK_HIGH"}));
    const RegisterEntry& speed = editor.registerMap().clipboard[1];
    EXPECT_TRUE(speed.SwapBytes && speed.SwapWords && !speed.SwapLongs);
}

TEST(SourceBrowser, CopyButtonCopiesTheSelectedTags)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    editor.sourceGrid->SelectRow(5);
    editor.sourceGrid->SelectRow(0, true);
    clickOn(*editor.sourceCopyButton());
    EXPECT_TRUE(waitUntil([&] { return clipboardNames(editor) == Names({"PUMP_RUN", "TANK_HIGH"}); }));
}

TEST(SourceBrowser, MenuOfTheTagGridHasOneEntryThatCopies)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    editor.sourceGrid->SelectRow(0);
    const MenuScript menu(editor, "Copy");
    rightClickOn(*editor.sourceGrid->GetGridWindow(), 100, 10);
    EXPECT_TRUE(waitUntil([&] { return clipboardNames(editor) == Names({"PUMP_RUN"}); }));
    EXPECT_EQ(menu.shownEntries(), Names({"6012 Copy|Ctrl+C"}));
}

TEST(SourceBrowser, RightClickOnATagThatIsNotSelectedSelectsItFirst)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    editor.sourceGrid->SelectRow(0);
    const MenuScript menu(editor, "Copy");
    rightClickOn(*editor.sourceGrid->GetGridWindow(), 100, editor.sourceGrid->GetRowSize(0) * 3 + 5);
    EXPECT_TRUE(waitUntil([&] { return !editor.registerMap().clipboard.empty(); }));
    EXPECT_EQ(clipboardNames(editor).front(), "PUMP_NAME");
}

TEST(SourceBrowser, ShiftF10OpensTheMenuOnTheSelection)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    focusTagGrid(editor);
    editor.sourceGrid->SelectRow(0);
    const MenuScript menu(editor, "Copy");
    pressKey(WXK_F10, wxMOD_SHIFT);
    EXPECT_TRUE(waitUntil([&] { return clipboardNames(editor) == Names({"PUMP_RUN"}); }));
}

TEST(SourceBrowser, CopyingWithoutASelectionEmptiesTheClipboard)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    editor.registerMap().clipboard.push_back(freeSlot(0));
    focusTagGrid(editor);
    pressKey('C', wxMOD_CONTROL);
    EXPECT_TRUE(waitUntil([&] { return editor.registerMap().clipboard.empty(); }));
}
