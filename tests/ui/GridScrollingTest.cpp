// Which rows of the grids are in view, and where their cursors stand.

#include "ui/grid/GridScrolling.h"

#include "tests/ui/SourceSide.h"
#include "tests/ui/UiTest.h"
#include "ui/grid/GridSelection.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/checkbox.h>
#include <wx/grid.h>
#include <wx/textctrl.h>

namespace
{

constexpr int tagCount = 300;

/// A database of more tags than fit on a page, which share a group, and a map of more registers than fit on one.
class LongFiles
{
public:
    LongFiles()
    {
        std::string tags;
        std::string definition;
        for (int i = 0; i < tagCount; ++i)
        {
            const std::string name = "TAG_" + std::to_string(1000 + i);
            tags += (i == 0 ? "" : ",") + (R"({"Name": ")" + name + R"(", "Size": 2, "Groups": 1})");
            definition += "HOLDING," + std::to_string(i) + ",NONE,INT16," + name + ",,1,UNLOCKED,OK\n";
        }
        folder.write("long.json",
                     R"({"database_groups": [{"mask": "1", "flag": "ALM"}], "structure": [{"lable": "Works",
            "dbprefix": "TAG_"}], "database": [)" +
                         tags + "]}");
        folder.write("long.csv", definition);
    }

    DocumentFiles startup() const { return {(folder / "long.json").string(), (folder / "long.csv").string(), 0}; }

private:
    TempFolder folder;
};

/// Opens the tests' plant with a row for every address.
EditorWindow& openWithEveryAddress(const PlantFiles& files)
{
    EditorWindow& editor = *openEditor(files.startup());
    editor.nextView();
    editor.nextView();
    return editor;
}

bool standsOnFirstRow(const wxGrid& grid)
{
    return grid.IsVisible(0, 0) && grid.GetGridCursorRow() == 0 && grid.GetGridCursorCol() == 0;
}

bool isInView(const wxGrid& grid, int row)
{
    return grid.IsVisible(row, 0, true);
}

int lastOf(const std::vector<int>& rows)
{
    return rows.empty() ? -1 : rows.back();
}

/// Presses a key until a row is selected.
/// @param presses  the most that it takes
void pressUntilSelected(const wxGrid& grid, int key, int modifiers, int row, int presses)
{
    const auto isSelected = [&] { return grid.IsInSelection(row, 0); };
    for (int press = 0; press < presses && !isSelected(); ++press)
    {
        const std::vector<int> before = selectedRows(grid);
        pressKey(key, modifiers);
        ASSERT_TRUE(waitUntil([&] { return selectedRows(grid) != before; })) << "after row " << lastOf(before);
    }
    EXPECT_TRUE(isSelected()) << row;
}

void focus(wxGrid& grid)
{
    grid.SetFocus();
    EXPECT_TRUE(waitUntil([&] { return grid.GetGridWindow()->HasFocus(); }));
}

/// Opens the long list of tags, scrolled down as far as it goes.
EditorWindow& openAtTheEnd(const LongFiles& files)
{
    EditorWindow& editor = *openEditor(files.startup());
    focus(*editor.sourceGrid);
    pressKey(WXK_END, wxMOD_CONTROL);
    EXPECT_TRUE(waitUntil([&] { return editor.sourceGrid->IsVisible(tagCount - 1, 0); }));
    EXPECT_FALSE(editor.sourceGrid->IsVisible(0, 0));
    return editor;
}

} // namespace

TEST(GridScrolling, FilterShowsTheFirstRowWithTheCursorOnIt)
{
    const LongFiles files;
    const EditorWindow& editor = openAtTheEnd(files);
    typeOver(*editor.sourceFilter, "tag_1");
    EXPECT_TRUE(waitUntil([&] { return standsOnFirstRow(*editor.sourceGrid); }));
}

TEST(GridScrolling, RowThatIsScrolledToIsTheFirstInView)
{
    const PlantFiles files("");
    const EditorWindow& editor = openWithEveryAddress(files);
    wxGrid& grid = *editor.mapGrid;
    for (const int row : {1000, 500})
    {
        scrollToTop(grid, row);
        EXPECT_EQ(grid.YToRow(grid.CalcUnscrolledPosition(wxPoint(0, grid.GetRowSize(row) / 2)).y), row);
    }
}

TEST(GridScrolling, RowInTwoSelectedBlocksIsListedOnce)
{
    const PlantFiles files("");
    wxGrid& grid = *openWithEveryAddress(files).mapGrid;
    const int lastColumn = grid.GetNumberCols() - 1;
    grid.SelectBlock(1, 0, 3, lastColumn);
    grid.SelectBlock(2, 0, 4, lastColumn, true);
    EXPECT_EQ(selectedRows(grid), (std::vector{1, 2, 3, 4}));
}

TEST(GridScrolling, ChoiceInTheTreeShowsTheFirstRowWithTheCursorOnIt)
{
    const LongFiles files;
    const EditorWindow& editor = openAtTheEnd(files);
    clickNode(editor, "Works");
    EXPECT_TRUE(waitUntil([&] { return standsOnFirstRow(*editor.sourceGrid); }));
}

TEST(GridScrolling, GroupBoxShowsTheFirstRowWithTheCursorOnIt)
{
    const LongFiles files;
    const EditorWindow& editor = openAtTheEnd(files);
    clickOn(*groupBox(editor, "ALM"));
    EXPECT_TRUE(waitUntil([&] { return standsOnFirstRow(*editor.sourceGrid); }));
}

TEST(GridScrolling, ViewFollowsKeysThatExtendTheSelection)
{
    const LongFiles files;
    const EditorWindow& editor = *openEditor(files.startup());
    for (wxGrid* const grid : {editor.sourceGrid, editor.mapGrid})
    {
        focus(*grid);
        pressUntilSelected(*grid, WXK_PAGEDOWN, wxMOD_SHIFT, 100, 100);
        pressUntilSelected(*grid, WXK_DOWN, wxMOD_SHIFT, 150, 100);
        EXPECT_TRUE(isInView(*grid, 150));
        EXPECT_FALSE(isInView(*grid, 90));
        pressKey(WXK_HOME, wxMOD_SHIFT | wxMOD_CONTROL);
        EXPECT_TRUE(waitUntil([&] { return isInView(*grid, 0); }));
        pressKey(WXK_END, wxMOD_SHIFT | wxMOD_CONTROL);
        EXPECT_TRUE(waitUntil([&] { return isInView(*grid, tagCount - 1); }));
        EXPECT_EQ(selectedRows(*grid).size(), static_cast<std::size_t>(tagCount));
    }
}

TEST(GridScrolling, ViewFollowsRegistersThatAreMovedDownOutOfThePage)
{
    const PlantFiles files("HOLDING,00000,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n");
    EditorWindow& editor = openWithEveryAddress(files);
    editor.clickMapRow(0);
    pressUntilSelected(*editor.mapGrid, '=', 0, 60, 60);
    EXPECT_EQ(editor.selectedMapRows(), (std::vector<int>{59, 60}));
    EXPECT_TRUE(isInView(*editor.mapGrid, 60));
}

TEST(GridScrolling, ViewFollowsRegistersThatAreMovedUpOutOfThePage)
{
    const PlantFiles files("HOLDING,00100,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n");
    EditorWindow& editor = openWithEveryAddress(files);
    editor.clickMapRow(100);
    pressUntilSelected(*editor.mapGrid, '-', 0, 40, 60);
    EXPECT_EQ(editor.selectedMapRows(), (std::vector<int>{40, 41}));
    EXPECT_TRUE(isInView(*editor.mapGrid, 40));
}

TEST(GridScrolling, LockingASelectionThatReachesOutOfThePageLeavesTheView)
{
    const LongFiles files;
    EditorWindow& editor = *openEditor(files.startup());
    pressUntilSelected(*editor.mapGrid, WXK_PAGEDOWN, wxMOD_SHIFT, 100, 100);
    const wxPoint view = editor.mapGrid->GetViewStart();
    clickOn(*editor.button("Toggle register lock"));
    EXPECT_TRUE(waitUntil([&] { return editor.cell(100, 0) == "L"; }));
    EXPECT_EQ(editor.mapGrid->GetViewStart(), view);
    EXPECT_TRUE(editor.mapGrid->IsInSelection(0, 0));
}
