// Opening the map grid's context menu, by mouse and by keyboard.

#include "tests/ui/EditorWindow.h"
#include "tests/ui/MenuScript.h"
#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>
#include <wx/grid.h>
#include <wx/platinfo.h>

namespace
{

using Rows = std::vector<int>;

constexpr std::string_view definition = "HOLDING,00100,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                        "HOLDING,00101,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n"
                                        "HOLDING,00104,NONE,FLOAT,TANK_LEVEL,Level,2,UNLOCKED,OK\n"
                                        "HOLDING,00110,NONE,INT16,TANK_HIGH,Level high,1,UNLOCKED,OK\n";

/// Selects the rows from one to another as a user does with Shift.
void selectRows(EditorWindow& editor, int first, int last)
{
    editor.clickMapRow(first);
    Rows wanted{first};
    for (int row = first + 1; row <= last; ++row)
    {
        pressKey(WXK_DOWN, wxMOD_SHIFT);
        wanted.push_back(row);
    }
    ASSERT_TRUE(waitUntil([&] { return editor.selectedMapRows() == wanted; }));
}

/// Selects two rows and deletes them from the menu that a key opens.
void expectMenuOnTheSelection(int key, int modifiers)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    selectRows(editor, 1, 2);
    const MenuScript menu(editor, "Delete");
    pressKey(key, modifiers);
    EXPECT_TRUE(waitUntil([&] { return editor.shownRows() == std::vector<std::string>{"00100", "00110"}; }));
    EXPECT_TRUE(menu.wasOpened());
}

} // namespace

TEST(MainFrameMenu, RightClickOnARowThatIsNotSelectedSelectsItAlone)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    selectRows(editor, 0, 1);
    const MenuScript menu(editor, "Delete");
    editor.rightClickMapRow(3);
    EXPECT_TRUE(waitUntil([&] { return editor.shownRows() == std::vector<std::string>{"00100", "00101", "00104"}; }));
}

TEST(MainFrameMenu, RightClickInsideTheSelectionKeepsIt)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    selectRows(editor, 1, 3);
    const MenuScript menu(editor, "Delete");
    editor.rightClickMapRow(2);
    EXPECT_TRUE(waitUntil([&] { return editor.shownRows() == std::vector<std::string>{"00100"}; }));
}

TEST(MainFrameMenu, RightClickBelowTheRowsKeepsTheSelection)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(1);
    const MenuScript menu(editor, "Delete");
    editor.rightClickMapRow(4);
    EXPECT_TRUE(waitUntil([&] { return editor.shownRows() == std::vector<std::string>{"00100", "00104", "00110"}; }));
}

TEST(MainFrameMenu, RightClickGivesTheRowTheCursorToo)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(0);
    const MenuScript menu(editor, "Copy");
    editor.rightClickMapRow(2);
    ASSERT_TRUE(waitUntil([&] { return editor.registerMap().clipboard.size() == 2; }));
    EXPECT_EQ(editor.selectedMapRows(), Rows{2});
    EXPECT_EQ(editor.mapGrid->GetGridCursorRow(), 2);
}

TEST(MainFrameMenu, MenuKeyOpensItAtTheCursorOnTheSelection)
{
    expectMenuOnTheSelection(wxPlatformInfo::Get().GetPortId() == wxPORT_MSW ? WXK_WINDOWS_MENU : WXK_MENU, 0);
}

TEST(MainFrameMenu, ShiftF10OpensItAtTheCursorOnTheSelection)
{
    expectMenuOnTheSelection(WXK_F10, wxMOD_SHIFT);
}
