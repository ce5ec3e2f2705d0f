// Widths of columns, changed with the mouse at the titles above them.

#include "tests/ui/ControlsBelow.h"
#include "tests/ui/EditorWindow.h"
#include "tests/ui/UiTest.h"
#include "ui/grid/GridHeader.h"

#include <gtest/gtest.h>
#include <wx/grid.h>
#include <wx/stattext.h>
#include <wx/uiaction.h>

namespace
{

GridHeader& headerOf(const wxGrid& grid)
{
    return *firstBelow<GridHeader>(*grid.GetParent());
}

/// The title row's place above the right end of a column, on the screen.
wxPoint endOf(const wxGrid& grid, int column)
{
    int end = 0;
    for (int i = 0; i <= column; ++i)
        end += grid.GetColSize(i);
    const GridHeader& header = headerOf(grid);
    return header.ClientToScreen(
        wxPoint(grid.CalcScrolledPosition(wxPoint(end, 0)).x - 2, header.GetSize().GetHeight() / 2));
}

/// Pulls the end of a column to the right, or to the left by less than 0.
void pull(const wxGrid& grid, int column, int pixels)
{
    const wxPoint from = endOf(grid, column);
    wxUIActionSimulator simulator;
    simulator.MouseMove(from.x, from.y);
    simulator.MouseDown();
    simulator.MouseMove(from.x + pixels / 2, from.y);
    simulator.MouseMove(from.x + pixels, from.y);
    simulator.MouseUp();
}

void doubleClickEndOf(const wxGrid& grid, int column)
{
    const wxPoint place = endOf(grid, column);
    wxUIActionSimulator simulator;
    simulator.MouseMove(place.x, place.y);
    simulator.MouseDblClick();
}

/// The title that stands first in the row.
const wxWindow& firstTitle(const wxGrid& grid)
{
    return *headerOf(grid).GetChildren().front();
}

} // namespace

TEST(ColumnDrag, TagColumnIsPulledAtTheEndOfItsTitle)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const wxGrid& grid = *editor.sourceGrid;
    const int before = grid.GetColSize(0);
    const int last = grid.GetColSize(4);
    pull(grid, 0, 60);
    EXPECT_TRUE(waitUntil([&] { return grid.GetColSize(0) == before + 60; })) << grid.GetColSize(0);
    EXPECT_EQ(grid.GetColSize(1), grid.FromDIP(70));
    EXPECT_EQ(grid.GetColSize(2), grid.FromDIP(50));
    EXPECT_EQ(grid.GetColSize(3), grid.FromDIP(70));
    EXPECT_EQ(grid.GetColSize(4), last - 60) << "the last column takes what is left";
    EXPECT_EQ(firstTitle(grid).GetSize().GetWidth(), before + 60 - grid.FromDIP(5));
    pull(grid, 0, -60);
    EXPECT_TRUE(waitUntil([&] { return grid.GetColSize(0) == before; })) << grid.GetColSize(0);
}

TEST(ColumnDrag, ColumnIsNeverNarrowerThanItsTitle)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const wxGrid& grid = *editor.sourceGrid;
    pull(grid, 0, -165);
    EXPECT_TRUE(waitUntil([&] { return grid.GetColSize(0) < 70; })) << grid.GetColSize(0);
    EXPECT_GE(firstTitle(grid).GetSize().GetWidth(), firstTitle(grid).GetBestSize().GetWidth());
}

TEST(ColumnDrag, DoubleClickMakesAColumnAsWideAsItsTexts)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const wxGrid& grid = *editor.sourceGrid;
    const wxFont font = grid.GetDefaultCellFont();
    int widest = 0;
    grid.GetTextExtent("PUMP_SPEED_SP", &widest, nullptr, nullptr, nullptr, &font);
    doubleClickEndOf(grid, 0);
    EXPECT_TRUE(waitUntil([&] { return grid.GetColSize(0) < 170; }));
    EXPECT_GE(grid.GetColSize(0), widest + 4);
    EXPECT_LE(grid.GetColSize(0), widest + 8);
}

TEST(ColumnDrag, MouseThatIsReleasedPullsNoMore)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const wxGrid& grid = *editor.sourceGrid;
    pull(grid, 1, 30);
    EXPECT_TRUE(waitUntil([&] { return grid.GetColSize(1) == grid.FromDIP(70) + 30; }));
    const wxPoint place = endOf(grid, 0);
    wxUIActionSimulator().MouseMove(place.x, place.y);
    pull(grid, 2, 30);
    EXPECT_TRUE(waitUntil([&] { return grid.GetColSize(2) == grid.FromDIP(50) + 30; }));
    EXPECT_EQ(grid.GetColSize(1), grid.FromDIP(70) + 30);
    EXPECT_EQ(grid.GetColSize(0), grid.FromDIP(170));
    EXPECT_EQ(grid.GetColSize(3), grid.FromDIP(70));
}

TEST(ColumnDrag, MapColumnsStay)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    pull(*editor.mapGrid, 2, 60);
    doubleClickEndOf(*editor.mapGrid, 1);
    pull(*editor.sourceGrid, 1, 30);
    EXPECT_TRUE(waitUntil([&] { return editor.sourceGrid->GetColSize(1) == editor.FromDIP(70) + 30; }));
    EXPECT_EQ(editor.mapGrid->GetColSize(2), editor.FromDIP(170));
    EXPECT_EQ(editor.mapGrid->GetColSize(1), editor.FromDIP(60));
}

TEST(ColumnDrag, TitlesFollowAGridThatIsScrolledSideways)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    wxGrid& grid = *editor.sourceGrid;
    pull(grid, 0, 300);
    EXPECT_TRUE(waitUntil([&] { return grid.GetColSize(0) == 470; }));
    grid.Scroll(5, 0);
    ASSERT_LT(grid.CalcScrolledPosition(wxPoint(0, 0)).x, 0);
    EXPECT_TRUE(
        waitUntil([&] { return firstTitle(grid).GetPosition().x == grid.CalcScrolledPosition(wxPoint(0, 0)).x; }));
    const int before = grid.GetColSize(1);
    pull(grid, 1, 20);
    EXPECT_TRUE(waitUntil([&] { return grid.GetColSize(1) == before + 20; }));
}
