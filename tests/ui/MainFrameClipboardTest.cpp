// Cut, copy, paste, append and delete: by keys, by buttons and from the map grid's menu.

#include "tests/ui/EditorWindow.h"
#include "tests/ui/MenuScript.h"
#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/grid.h>

namespace
{

using Rows = std::vector<std::string>;

/// Two neighbours, a free register behind them, a locked object, and one in another space.
constexpr std::string_view definition = "COIL,00007,NONE,INT16,TANK_HIGH,Level high,1,UNLOCKED,OK\n"
                                        "HOLDING,00100,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                        "HOLDING,00101,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n"
                                        "HOLDING,00104,NONE,FLOAT,TANK_LEVEL,Level,2,LOCKED,OK\n"
                                        "HOLDING,00110,NONE,INT16,TANK_HIGH,Level high,1,UNLOCKED,OK\n";

const Rows openingRows{"00100", "00101", "00104", "00110"};

constexpr const char* cutTooltip = "Cut - ctrl x";
constexpr const char* copyTooltip = "Copy - ctrl c";
constexpr const char* pasteTooltip = "Paste - ctrl v";
constexpr const char* appendTooltip = "Append to block";
constexpr const char* deleteTooltip = "Delete - del";

const Rows menuEntries{"6003 Cut|Ctrl+X",   "6005 Copy|Ctrl+C",
                       "6006 Paste|Ctrl+V", "6007 Append|Ctrl+B",
                       "6004 Delete|Del",   "-",
                       "6010 Edit",         "6008 Tagname substitution",
                       "6009 Compress",     "-",
                       "6011 Lock / Unlock"};

bool waitForRows(const EditorWindow& editor, const Rows& rows)
{
    return waitUntil([&] { return editor.shownRows() == rows; });
}

bool waitForClipboard(EditorWindow& editor, std::size_t registers)
{
    return waitUntil([&] { return editor.registerMap().clipboard.size() == registers; });
}

/// Copies the object of a row with the keyboard.
void copyRow(EditorWindow& editor, int row, std::size_t registers)
{
    editor.clickMapRow(row);
    pressKey('C', wxMOD_CONTROL);
    ASSERT_TRUE(waitForClipboard(editor, registers));
}

const RegisterEntry& holding(EditorWindow& editor, int address)
{
    return editor.registerMap().slots(RegisterSpace::Holding)[address];
}

/// Takes an entry of the map grid's menu, opened over the first selected row or beside all rows.
void takeFromMenu(EditorWindow& editor, const std::string& entry)
{
    const MenuScript menu(editor, entry);
    const std::vector<int> rows = editor.selectedMapRows();
    editor.rightClickMapRow(rows.empty() ? editor.mapGrid->GetNumberRows() : rows.front());
    EXPECT_TRUE(waitUntil([&menu] { return menu.wasOpened(); }));
    EXPECT_EQ(menu.shownEntries(), menuEntries);
}

} // namespace

TEST(MainFrameClipboard, ControlXCutsAndControlVPutsBackAsOftenAsWanted)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(0);
    pressKey('X', wxMOD_CONTROL);
    ASSERT_TRUE(waitForRows(editor, {"00101", "00104", "00110"}));
    EXPECT_FALSE(holding(editor, 100).used);
    EXPECT_EQ(editor.registerMap().clipboard.size(), 1U);
    EXPECT_TRUE(editor.selectedMapRows().empty());

    editor.clickMapRow(2);
    pressKey('V', wxMOD_CONTROL);
    ASSERT_TRUE(waitForRows(editor, {"00101", "00104", "00110", "00111"}));
    EXPECT_EQ(editor.cell(2, 2), "PUMP_RUN");
    EXPECT_EQ(editor.cell(3, 2), "TANK_HIGH");
    EXPECT_TRUE(editor.selectedMapRows().empty());

    editor.clickMapRow(3);
    pressKey('V', wxMOD_CONTROL);
    ASSERT_TRUE(waitForRows(editor, {"00101", "00104", "00110", "00111", "00112"}));
    EXPECT_EQ(editor.cell(3, 2), "PUMP_RUN");
    EXPECT_EQ(editor.registerMap().clipboard.size(), 1U);
}

TEST(MainFrameClipboard, ButtonsCutCopyPasteAndDelete)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(1);
    clickOn(*editor.button(copyTooltip));
    ASSERT_TRUE(waitForClipboard(editor, 2));
    EXPECT_EQ(editor.shownRows(), openingRows);
    EXPECT_EQ(editor.selectedMapRows(), std::vector<int>{1});

    editor.clickMapRow(3);
    clickOn(*editor.button(pasteTooltip));
    ASSERT_TRUE(waitForRows(editor, {"00100", "00101", "00104", "00110", "00112"}));

    editor.clickMapRow(4);
    clickOn(*editor.button(cutTooltip));
    ASSERT_TRUE(waitForRows(editor, {"00100", "00101", "00104", "00110"}));
    EXPECT_EQ(editor.registerMap().clipboard.size(), 1U);

    editor.clickMapRow(0);
    clickOn(*editor.button(deleteTooltip));
    ASSERT_TRUE(waitForRows(editor, {"00101", "00104", "00110"}));
    EXPECT_EQ(editor.registerMap().clipboard.size(), 1U);
}

TEST(MainFrameClipboard, DeleteKeyErasesWithoutAQuestionAndMovesNothing)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(0);
    pressKey(WXK_DELETE);
    ASSERT_TRUE(waitForRows(editor, {"00101", "00104", "00110"}));
    EXPECT_TRUE(editor.registerMap().clipboard.empty());
    EXPECT_EQ(holding(editor, 100), freeSlot(100));
}

TEST(MainFrameClipboard, LockedObjectIsCopiedByCutButStays)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    pressKey('A', wxMOD_CONTROL);
    ASSERT_TRUE(waitUntil([&] { return editor.selectedMapRows().size() == 4; }));
    pressKey('X', wxMOD_CONTROL);
    ASSERT_TRUE(waitForRows(editor, {"00104"}));
    EXPECT_EQ(editor.cell(0, 0), "L");
    EXPECT_EQ(editor.registerMap().clipboard.size(), 6U);
    editor.clickMapRow(0);
    pressKey(WXK_DELETE);
    editor.nextView();
    EXPECT_EQ(editor.shownRows(), (Rows{"00104", "00105"}));
}

TEST(MainFrameClipboard, AppendButtonPastesBehindTheRunOfTheChosenRow)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    copyRow(editor, 3, 1);
    editor.clickMapRow(0);
    clickOn(*editor.button(appendTooltip));
    ASSERT_TRUE(waitForRows(editor, {"00100", "00101", "00103", "00104", "00110"}));
    EXPECT_EQ(editor.cell(2, 2), "TANK_HIGH");
    EXPECT_TRUE(editor.selectedMapRows().empty());
}

TEST(MainFrameClipboard, AppendFromTheMenuPastesBehindTheRunOfTheChosenRow)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    copyRow(editor, 0, 1);
    editor.clickMapRow(3);
    takeFromMenu(editor, "Append");
    ASSERT_TRUE(waitForRows(editor, {"00100", "00101", "00104", "00110", "00111"}));
    EXPECT_EQ(editor.cell(4, 2), "PUMP_RUN");
}

TEST(MainFrameClipboard, ControlBDoesNothingThoughTheMenuShowsIt)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    copyRow(editor, 0, 1);
    editor.clickMapRow(3);
    pressKey('B', wxMOD_CONTROL);
    editor.nextView();
    EXPECT_FALSE(editor.registerMap().isModified());
}

TEST(MainFrameClipboard, PasteWithoutRoomIsRefusedAndChangesNothing)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    copyRow(editor, 1, 2);
    editor.clickMapRow(0);
    const MessageBoxAnswer answer(wxID_OK);
    pressKey('V', wxMOD_CONTROL);
    EXPECT_TRUE(waitUntil([&] { return answer.count() == 1; }));
    EXPECT_EQ(answer.lastMessage(), "Cannot paste here - there is not enough room before reaching either a locked "
                                    "register or the end of the register space");
    EXPECT_FALSE(editor.registerMap().isModified());
    EXPECT_EQ(editor.shownRows(), openingRows);
    EXPECT_EQ(editor.selectedMapRows(), std::vector<int>{0});
    EXPECT_EQ(editor.registerMap().clipboard.size(), 2U);
}

TEST(MainFrameClipboard, PasteOnALockedObjectIsRefused)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    copyRow(editor, 0, 1);
    editor.clickMapRow(2);
    const MessageBoxAnswer answer(wxID_OK);
    clickOn(*editor.button(pasteTooltip));
    EXPECT_TRUE(waitUntil([&] { return answer.count() == 1; }));
    EXPECT_FALSE(editor.registerMap().isModified());
}

TEST(MainFrameClipboard, PasteAndAppendDoNothingWhileRowsAreThereButNoneIsSelected)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    copyRow(editor, 0, 1);
    editor.mapGrid->ClearSelection();
    pressKey('V', wxMOD_CONTROL);
    clickOn(*editor.button(pasteTooltip));
    clickOn(*editor.button(appendTooltip));
    editor.nextView();
    EXPECT_FALSE(editor.registerMap().isModified());
}

TEST(MainFrameClipboard, CommandsDoNothingWithoutSelectionAndClipboard)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.mapGrid->ClearSelection();
    for (const char key : {'C', 'X', 'V'})
        pressKey(key, wxMOD_CONTROL);
    pressKey(WXK_DELETE);
    editor.nextView();
    editor.clickMapRow(0);
    pressKey('V', wxMOD_CONTROL);
    clickOn(*editor.button(appendTooltip));
    editor.nextView();
    EXPECT_TRUE(editor.registerMap().clipboard.empty());
    EXPECT_FALSE(editor.registerMap().isModified());
}

TEST(MainFrameClipboard, PasteFromOneSpaceIntoAnEmptyOneLandsAtItsFirstRegister)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    copyRow(editor, 1, 2);
    clickOn(*editor.button("Show Input Registers"));
    ASSERT_TRUE(waitForRows(editor, {}));
    pressKey('V', wxMOD_CONTROL);
    ASSERT_TRUE(waitForRows(editor, {"00000"}));
    EXPECT_EQ(editor.cell(0, 2), "PUMP_SPEED");
    EXPECT_EQ(editor.cell(0, 3), "FLOAT");
    const RegisterSlots& input = editor.registerMap().slots(RegisterSpace::Input);
    EXPECT_TRUE(input[1].used);
    EXPECT_EQ(input[1].startAddress, 0U);
    EXPECT_FALSE(input[2].used);
    EXPECT_TRUE(holding(editor, 101).used);
}

TEST(MainFrameClipboard, PasteFromOneSpaceIntoAnotherPushesWhatIsThere)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    copyRow(editor, 1, 2);
    clickOn(*editor.button("Show Coil Registers"));
    ASSERT_TRUE(waitForRows(editor, {"00007"}));
    editor.clickMapRow(0);
    pressKey('V', wxMOD_CONTROL);
    ASSERT_TRUE(waitForRows(editor, {"00007", "00009"}));
    EXPECT_EQ(editor.cell(0, 2), "PUMP_SPEED");
    EXPECT_EQ(editor.cell(1, 2), "TANK_HIGH");
}

TEST(MainFrameClipboard, PasteOnAContinuationRowLandsOnTheHeadAndCopyingOneDoesNothing)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    copyRow(editor, 3, 1);
    editor.nextView();
    ASSERT_EQ(editor.cell(2, 1), "00102");
    editor.clickMapRow(2);
    pressKey('C', wxMOD_CONTROL);
    pressKey('V', wxMOD_CONTROL);
    ASSERT_TRUE(waitForRows(editor, {"00100", "00101", "00102", "00103", "00104", "00105", "00110"}));
    EXPECT_EQ(editor.cell(1, 2), "TANK_HIGH");
    EXPECT_EQ(editor.cell(2, 2), "PUMP_SPEED");
    EXPECT_EQ(holding(editor, 103).startAddress, 102U);
}

TEST(MainFrameClipboard, PasteLosesTheSelectionAndDoesNotScroll)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    copyRow(editor, 1, 2);
    editor.nextView();
    editor.nextView();
    editor.clickMapRow(5000);
    const wxPoint before = editor.mapGrid->GetViewStart();
    ASSERT_GT(before.y, 0);
    pressKey('V', wxMOD_CONTROL);
    ASSERT_TRUE(waitUntil([&] { return holding(editor, 5001).used; }));
    EXPECT_TRUE(waitUntil([&] { return editor.selectedMapRows().empty(); }));
    EXPECT_EQ(editor.mapGrid->GetViewStart(), before);
    EXPECT_EQ(editor.cell(5000, 2), "PUMP_SPEED");
    EXPECT_EQ(editor.cell(5000, 1), "05000");
}

TEST(MainFrameClipboard, GapInsideACopiedRangeSurvivesThePaste)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.nextView();
    editor.nextView();
    editor.clickMapRow(102);
    for (const int row : {100, 101, 103})
        editor.mapGrid->SelectRow(row, true);
    pressKey('C', wxMOD_CONTROL);
    ASSERT_TRUE(waitForClipboard(editor, 4));
    // Not at the place of the click before, which would make it a double-click.
    editor.mapGrid->MakeCellVisible(205, 2);
    editor.clickMapRow(200);
    pressKey('V', wxMOD_CONTROL);
    ASSERT_TRUE(waitUntil([&] { return holding(editor, 202).used; }));
    EXPECT_TRUE(holding(editor, 200).used);
    EXPECT_EQ(holding(editor, 202).startAddress, 201U);
    EXPECT_EQ(holding(editor, 203), freeSlot(203));
}

TEST(MainFrameClipboard, LettersWithoutControlReachNoCommand)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    copyRow(editor, 0, 1);
    editor.clickMapRow(3);
    for (const char key : {'X', 'C', 'V', 'A'})
    {
        pressKey(key);
        pressKey(key, wxMOD_SHIFT);
    }
    clickOn(*editor.button(deleteTooltip));
    EXPECT_TRUE(waitForRows(editor, {"00100", "00101", "00104"}));
    ASSERT_EQ(editor.registerMap().clipboard.size(), 1U);
    EXPECT_EQ(editor.registerMap().clipboard.front().address, 100U);
}

TEST(MainFrameClipboard, MenuDeletesTheSelection)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(3);
    takeFromMenu(editor, "Delete");
    EXPECT_TRUE(waitForRows(editor, {"00100", "00101", "00104"}));
}

TEST(MainFrameClipboard, MenuCutsCopiesAndPastes)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(1);
    takeFromMenu(editor, "Copy");
    ASSERT_TRUE(waitForClipboard(editor, 2));
    editor.clickMapRow(0);
    takeFromMenu(editor, "Cut");
    ASSERT_TRUE(waitForRows(editor, {"00101", "00104", "00110"}));
    editor.clickMapRow(2);
    takeFromMenu(editor, "Paste");
    EXPECT_TRUE(waitForRows(editor, {"00101", "00104", "00110", "00111"}));
}

TEST(MainFrameClipboard, MenuLocksTheSelectionAndKeepsIt)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(1);
    takeFromMenu(editor, "Lock / Unlock");
    ASSERT_TRUE(waitUntil([&] { return editor.cell(1, 0) == "L"; }));
    EXPECT_TRUE(holding(editor, 102).locked);
    EXPECT_EQ(editor.selectedMapRows(), std::vector<int>{1});
}

TEST(MainFrameClipboard, MenuLeftWithoutAChoiceChangesNothing)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(2);
    takeFromMenu(editor, "no such entry");
    editor.nextView();
    EXPECT_FALSE(editor.registerMap().isModified());
    EXPECT_TRUE(editor.registerMap().clipboard.empty());
}
