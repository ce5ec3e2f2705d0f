// Move, shove, compress, lock and purge: by keys and by buttons.

#include "tests/ui/EditorWindow.h"
#include "tests/ui/MenuScript.h"
#include "tests/ui/ScreenPicture.h"
#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/grid.h>

namespace
{

using Rows = std::vector<std::string>;

/// A free register on both sides of two neighbours, and something lonely far behind.
constexpr std::string_view definition = "HOLDING,00010,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n"
                                        "HOLDING,00012,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                        "HOLDING,00040,NONE,INT16,TANK_HIGH,Level high,1,UNLOCKED,OK\n";

/// A locked object between two others.
constexpr std::string_view lockedDefinition = "HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                              "HOLDING,00013,NONE,FLOAT,PUMP_SPEED,Speed,2,LOCKED,OK\n"
                                              "HOLDING,00020,NONE,INT16,TANK_HIGH,Level high,1,UNLOCKED,OK\n";

/// Registers in error in two spaces.
constexpr std::string_view faultyDefinition = "COIL,00007,NONE,INT16,LOST,Nobody knows,1,UNLOCKED,OK\n"
                                              "HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                              "HOLDING,00020,NONE,INT16,NOWHERE,Lost,1,UNLOCKED,OK\n"
                                              "HOLDING,00030,NONE,INT16,GONE,Lost,1,LOCKED,OK\n";

constexpr const char* compressTooltip = "Compress registers into contiguous block";
constexpr const char* purgeTooltip = "Delete registers with errors";
constexpr const char* lockTooltip = "Toggle register lock";

bool waitForRows(const EditorWindow& editor, const Rows& rows)
{
    return waitUntil([&] { return editor.shownRows() == rows; });
}

bool waitForSelection(const EditorWindow& editor, const std::vector<int>& rows)
{
    return waitUntil([&] { return editor.selectedMapRows() == rows; });
}

const RegisterEntry& holding(EditorWindow& editor, int address)
{
    return editor.registerMap().slots(RegisterSpace::Holding)[address];
}

/// Goes from the view that the window opens with to the one that shows every address.
void showEveryAddress(EditorWindow& editor)
{
    editor.nextView();
    editor.nextView();
    ASSERT_EQ(editor.mapGrid->GetNumberRows(), registersPerSpace);
}

/// Whether a row of the map grid has a tag's name on the screen.
bool showsTagname(const EditorWindow& editor, int row)
{
    constexpr int tagnameColumn = 2;
    wxRect cell = editor.mapGrid->CellToRect(row, tagnameColumn);
    cell.SetPosition(editor.mapGrid->CalcScrolledPosition(cell.GetPosition()));
    return !ScreenPicture(*editor.mapGrid->GetGridWindow(), cell.Deflate(3)).inked().IsEmpty();
}

} // namespace

TEST(MainFrameMoving, EqualsAndMinusWalkTheSelectedObjectOnAsOftenAsPressed)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(2);
    for (int step = 0; step < 3; ++step)
        pressKey('=');
    ASSERT_TRUE(waitForRows(editor, {"00010", "00012", "00043"}));
    EXPECT_TRUE(waitForSelection(editor, {2}));
    EXPECT_EQ(editor.mapGrid->GetGridCursorRow(), 2);
    EXPECT_EQ(editor.mapGrid->GetGridCursorCol(), 0);
    for (int step = 0; step < 5; ++step)
        pressKey('-');
    ASSERT_TRUE(waitForRows(editor, {"00010", "00012", "00038"}));
    EXPECT_TRUE(waitForSelection(editor, {2}));
}

TEST(MainFrameMoving, KeypadPlusAndMinusDoTheSame)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(2);
    pressKey(WXK_NUMPAD_ADD);
    pressKey(WXK_NUMPAD_ADD);
    ASSERT_TRUE(waitForRows(editor, {"00010", "00012", "00042"}));
    pressKey(WXK_NUMPAD_SUBTRACT);
    ASSERT_TRUE(waitForRows(editor, {"00010", "00012", "00041"}));
}

TEST(MainFrameMoving, KeysWithoutControlDoNotPushANeighbour)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(0);
    pressKey('=');
    pressKey(WXK_NUMPAD_ADD);
    editor.clickMapRow(1);
    pressKey('-');
    pressKey(WXK_NUMPAD_SUBTRACT);
    editor.nextView();
    EXPECT_EQ(editor.shownRows(), (Rows{"00010", "00011", "00012", "00040"}));
    EXPECT_FALSE(editor.registerMap().isModified());
}

TEST(MainFrameMoving, KeysWithControlPushTheNeighbour)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(0);
    pressKey('=', wxMOD_CONTROL);
    ASSERT_TRUE(waitForRows(editor, {"00011", "00013", "00040"}));
    EXPECT_TRUE(waitForSelection(editor, {0}));
    pressKey(WXK_NUMPAD_ADD, wxMOD_CONTROL);
    ASSERT_TRUE(waitForRows(editor, {"00012", "00014", "00040"}));
    editor.clickMapRow(1);
    pressKey('-', wxMOD_CONTROL);
    ASSERT_TRUE(waitForRows(editor, {"00011", "00013", "00040"}));
    EXPECT_TRUE(waitForSelection(editor, {1}));
    pressKey(WXK_NUMPAD_SUBTRACT, wxMOD_CONTROL);
    ASSERT_TRUE(waitForRows(editor, {"00010", "00012", "00040"}));
    EXPECT_EQ(holding(editor, 11).startAddress, 10U);
}

TEST(MainFrameMoving, FourButtonsMoveAndShove)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(2);
    clickOn(*editor.button("Move registers down"));
    ASSERT_TRUE(waitForRows(editor, {"00010", "00012", "00041"}));
    clickOn(*editor.button("Move registers down"));
    ASSERT_TRUE(waitForRows(editor, {"00010", "00012", "00042"}));
    clickOn(*editor.button("Move registers up"));
    ASSERT_TRUE(waitForRows(editor, {"00010", "00012", "00041"}));
    EXPECT_TRUE(waitForSelection(editor, {2}));

    editor.clickMapRow(0);
    clickOn(*editor.button("Move registers down"));
    clickOn(*editor.button("Shove registers down"));
    ASSERT_TRUE(waitForRows(editor, {"00011", "00013", "00041"}));
    editor.clickMapRow(1);
    clickOn(*editor.button("Shove registers up"));
    ASSERT_TRUE(waitForRows(editor, {"00010", "00012", "00041"}));
    EXPECT_TRUE(waitForSelection(editor, {1}));
}

TEST(MainFrameMoving, BlockOfSeveralRowsWalksOnTogether)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    pressKey('A', wxMOD_CONTROL);
    ASSERT_TRUE(waitForSelection(editor, {0, 1, 2}));
    pressKey('=');
    pressKey('=');
    ASSERT_TRUE(waitForRows(editor, {"00012", "00014", "00042"}));
    EXPECT_TRUE(waitForSelection(editor, {0, 1, 2}));
    EXPECT_EQ(editor.mapGrid->GetGridCursorRow(), 0);
}

TEST(MainFrameMoving, WithEveryAddressShownTheSelectionAndTheRowsFollowTheBlock)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    showEveryAddress(editor);
    editor.clickMapRow(10);
    pressKey('=', wxMOD_CONTROL);
    ASSERT_TRUE(waitForSelection(editor, {11, 12}));
    EXPECT_EQ(editor.cell(10, 2), "");
    EXPECT_EQ(editor.cell(11, 2), "PUMP_SPEED");
    EXPECT_EQ(editor.cell(13, 2), "PUMP_RUN");
    pressKey('=', wxMOD_CONTROL);
    ASSERT_TRUE(waitForSelection(editor, {12, 13}));
    EXPECT_EQ(editor.cell(11, 2), "");
    EXPECT_EQ(editor.cell(12, 2), "PUMP_SPEED");
    EXPECT_EQ(editor.cell(14, 2), "PUMP_RUN");
    EXPECT_EQ(editor.cell(14, 1), "00014");
    EXPECT_EQ(editor.mapGrid->GetGridCursorRow(), 12);
    pressKey('-');
    ASSERT_TRUE(waitForSelection(editor, {11, 12}));
    EXPECT_EQ(editor.cell(13, 2), "");
    EXPECT_EQ(editor.cell(14, 2), "PUMP_RUN");
}

TEST(MainFrameMoving, EndOfTheSpaceAndLocksHoldABlockInSilence)
{
    const PlantFiles files("HOLDING,00000,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                           "HOLDING,00001,NONE,INT16,TANK_HIGH,Level high,1,LOCKED,OK\n");
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(0);
    pressKey('-');
    pressKey('-', wxMOD_CONTROL);
    pressKey('=', wxMOD_CONTROL);
    editor.clickMapRow(1);
    pressKey('=');
    editor.nextView();
    EXPECT_FALSE(editor.registerMap().isModified());
    EXPECT_EQ(editor.shownRows(), (Rows{"00000", "00001"}));
}

TEST(MainFrameMoving, CompressButtonClosesTheGapsOfTheSelectedRange)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    pressKey('A', wxMOD_CONTROL);
    ASSERT_TRUE(waitForSelection(editor, {0, 1, 2}));
    clickOn(*editor.button(compressTooltip));
    ASSERT_TRUE(waitForRows(editor, {"00010", "00012", "00013"}));
    EXPECT_TRUE(waitForSelection(editor, {}));
    EXPECT_EQ(holding(editor, 40), freeSlot(40));
}

TEST(MainFrameMoving, CompressEntryOfTheMenuDoesTheSame)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(1);
    editor.mapGrid->SelectRow(2, true);
    const MenuScript menu(editor, "Compress");
    editor.rightClickMapRow(1);
    ASSERT_TRUE(waitForRows(editor, {"00010", "00012", "00013"}));
    EXPECT_EQ(editor.cell(2, 2), "TANK_HIGH");
}

TEST(MainFrameMoving, CompressingARangeWithoutGapsDropsTheSelectionOnly)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(0);
    clickOn(*editor.button(compressTooltip));
    EXPECT_TRUE(waitForSelection(editor, {}));
    EXPECT_FALSE(editor.registerMap().isModified());
}

TEST(MainFrameMoving, CompressingARangeThatHoldsALockIsRefused)
{
    const PlantFiles files(lockedDefinition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(0);
    editor.mapGrid->SelectRow(2, true);
    const MessageBoxAnswer answer(wxID_OK);
    clickOn(*editor.button(compressTooltip));
    ASSERT_TRUE(waitUntil([&] { return answer.count() == 1; }));
    EXPECT_EQ(answer.lastMessage(), "This action can not be completed as the selected range contains locked registers");
    EXPECT_FALSE(editor.registerMap().isModified());
    EXPECT_EQ(editor.selectedMapRows(), (std::vector<int>{0, 2}));
}

TEST(MainFrameMoving, LockButtonTurnsEveryRegisterOfTheObjectAndKeepsTheSelection)
{
    const PlantFiles files(lockedDefinition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(0);
    editor.mapGrid->SelectRow(1, true);
    clickOn(*editor.button(lockTooltip));
    ASSERT_TRUE(waitUntil([&] { return editor.cell(0, 0) == "L"; }));
    EXPECT_EQ(editor.cell(1, 0), "");
    EXPECT_FALSE(holding(editor, 13).locked);
    EXPECT_FALSE(holding(editor, 14).locked);
    EXPECT_TRUE(waitForSelection(editor, {0, 1}));
    clickOn(*editor.button(lockTooltip));
    ASSERT_TRUE(waitUntil([&] { return editor.cell(1, 0) == "L"; }));
    EXPECT_EQ(editor.cell(0, 0), "");
    EXPECT_TRUE(holding(editor, 14).locked);
    EXPECT_TRUE(waitForSelection(editor, {0, 1}));
}

TEST(MainFrameMoving, FreeRegisterCanBeLockedAndThenTakesNoNeighbour)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    showEveryAddress(editor);
    editor.clickMapRow(41);
    clickOn(*editor.button(lockTooltip));
    ASSERT_TRUE(waitUntil([&] { return holding(editor, 41).locked; }));
    EXPECT_TRUE(waitForSelection(editor, {41}));
    EXPECT_EQ(editor.cell(41, 0), "") << "only registers in use are marked";
    EXPECT_FALSE(holding(editor, 41).used);
    editor.clickMapRow(40);
    pressKey('=', wxMOD_CONTROL);
    editor.nextView();
    EXPECT_TRUE(holding(editor, 40).used);
    EXPECT_FALSE(holding(editor, 41).used);
}

TEST(MainFrameMoving, RowThatAPushedNeighbourComesToIsPaintedAmongAllAddresses)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    showEveryAddress(editor);
    editor.clickMapRow(10);
    ASSERT_TRUE(waitUntil([&] { return showsTagname(editor, 12) && !showsTagname(editor, 13); }));
    pressKey('=', wxMOD_CONTROL);
    EXPECT_TRUE(waitUntil([&] { return showsTagname(editor, 13); }));
}

TEST(MainFrameMoving, RowThatAMovedObjectLeavesIsPaintedAmongAllAddresses)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    showEveryAddress(editor);
    editor.clickMapRow(10);
    ASSERT_TRUE(waitUntil([&] { return showsTagname(editor, 11) && !showsTagname(editor, 9); }));
    pressKey('-');
    EXPECT_TRUE(waitUntil([&] { return showsTagname(editor, 9) && !showsTagname(editor, 11); }));
}

TEST(MainFrameMoving, LockingRowsThatStandApartSelectsNothingBetweenThem)
{
    const PlantFiles files(lockedDefinition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(0);
    editor.mapGrid->SelectRow(2, true);
    clickOn(*editor.button(lockTooltip));
    ASSERT_TRUE(waitUntil([&] { return editor.cell(0, 0) == "L" && editor.cell(2, 0) == "L"; }));
    EXPECT_TRUE(waitForSelection(editor, {0, 2}));
}

TEST(MainFrameMoving, PurgeAfterYesDeletesTheErrorsOfEverySpaceButNotTheLockedOnes)
{
    const PlantFiles files(faultyDefinition);
    EditorWindow& editor = *openEditor(files.startup());
    const MessageBoxAnswer answer(wxID_YES);
    clickOn(*editor.button(purgeTooltip));
    ASSERT_TRUE(waitForRows(editor, {"00010", "00030"}));
    EXPECT_EQ(answer.count(), 1);
    EXPECT_EQ(answer.lastMessage(),
              "This will delete all registers that contain an error.\nAre you sure you want to continue?");
    EXPECT_FALSE(editor.registerMap().slots(RegisterSpace::Coil)[7].used);
    EXPECT_EQ(editor.cell(1, 2), "GONE");
}

TEST(MainFrameMoving, PurgeJudgesAnewWhatItLeaves)
{
    const PlantFiles files(faultyDefinition);
    EditorWindow& editor = *openEditor(files.startup());
    RegisterEntry& slot = editor.registerMap().slots(RegisterSpace::Holding)[10];
    slot.tagname = InternedText("NOBODY");
    const MessageBoxAnswer answer(wxID_YES);
    clickOn(*editor.button(purgeTooltip));
    ASSERT_TRUE(waitForRows(editor, {"00010", "00030"}));
    EXPECT_EQ(slot.tagIndex, -1);
}

TEST(MainFrameMoving, PurgeAfterNoChangesNothing)
{
    const PlantFiles files(faultyDefinition);
    EditorWindow& editor = *openEditor(files.startup());
    const MessageBoxAnswer answer(wxID_NO);
    clickOn(*editor.button(purgeTooltip));
    ASSERT_TRUE(waitUntil([&] { return answer.count() == 1; }));
    editor.nextView();
    EXPECT_FALSE(editor.registerMap().isModified());
    EXPECT_EQ(editor.shownRows(), (Rows{"00010", "00020", "00030"}));
}
