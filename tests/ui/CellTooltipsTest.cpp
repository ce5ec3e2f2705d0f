// What the mouse tells about a cell that does not show everything.

#include "tests/ui/EditorWindow.h"
#include "tests/ui/UiTest.h"
#include "ui/ToolkitText.h"

#include <gtest/gtest.h>
#include <wx/grid.h>
#include <wx/uiaction.h>

namespace
{

constexpr const char* longName = "PUMP_STATION_NORTH_OF_THE_RIVER_SPEED_OF_THE_SECOND_PUMP";

const std::string definition = std::string("HOLDING,00100,NONE,FLOAT,") + longName + ",Speed,2,UNLOCKED,OK\n" +
                               "HOLDING,00110,NONE,FLOAT,PUMP_SPEED,Speed,2,LOCKED,OK\n";

/// Moves the mouse over a cell that is in view.
void hoverOver(wxGrid& grid, int row, int column)
{
    const wxRect rect = grid.CellToRect(row, column);
    const wxPoint middle(rect.x + rect.width / 2, rect.y + rect.height / 2);
    const wxPoint place = grid.GetGridWindow()->ClientToScreen(grid.CalcScrolledPosition(middle));
    wxUIActionSimulator().MouseMove(place.x, place.y);
}

/// Whether the mouse over a cell brings up a tooltip of that text, empty for none.
bool tells(wxGrid& grid, int row, int column, const std::string& text)
{
    hoverOver(grid, row, column);
    return waitUntil([&] { return modelText(grid.GetGridWindow()->GetToolTipText()) == text; });
}

} // namespace

TEST(CellTooltips, CellWithoutRoomTellsItsWholeText)
{
    const PlantFiles files(definition);
    const EditorWindow& editor = *openEditor(files.startup());
    EXPECT_TRUE(tells(*editor.mapGrid, 0, 2, longName));
    EXPECT_TRUE(tells(*editor.mapGrid, 1, 2, ""));
    EXPECT_TRUE(tells(*editor.mapGrid, 0, 2, longName));
    EXPECT_TRUE(tells(*editor.mapGrid, 0, 7, ""));
}

TEST(CellTooltips, TagGridTellsTooAndNothingBelowItsLastRow)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    wxGrid& grid = *editor.sourceGrid;
    EXPECT_TRUE(tells(grid, 0, 0, ""));
    grid.SetColSize(0, 40);
    hoverOver(grid, 1, 0);
    EXPECT_TRUE(tells(grid, 2, 0, "PUMP_SPEED_SP"));
    const wxPoint below = grid.GetGridWindow()->ClientToScreen(wxPoint(20, grid.GetDefaultRowSize() * 8));
    wxUIActionSimulator().MouseMove(below.x, below.y);
    EXPECT_TRUE(waitUntil([&] { return grid.GetGridWindow()->GetToolTipText().empty(); }));
}

TEST(CellTooltips, LockIsToldOfFreeRegistersToo)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    EXPECT_TRUE(tells(*editor.mapGrid, 1, 1, "locked"));
    EXPECT_TRUE(tells(*editor.mapGrid, 0, 1, ""));
    editor.registerMap().currentSlots()[3].locked = true;
    editor.nextView();
    editor.nextView();
    ASSERT_EQ(editor.cell(3, 1), "00003");
    EXPECT_TRUE(tells(*editor.mapGrid, 3, 1, "locked"));
    EXPECT_TRUE(tells(*editor.mapGrid, 4, 1, ""));
}

TEST(CellTooltips, ContinuationTellsWhatItsColonsStandFor)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.nextView();
    ASSERT_EQ(editor.cell(3, 2), ":");
    EXPECT_TRUE(tells(*editor.mapGrid, 3, 2, "PUMP_SPEED"));
    EXPECT_TRUE(tells(*editor.mapGrid, 3, 7, "Speed"));
}

TEST(CellTooltips, EndlessTextIsToldAsFarAsAScreenShowsIt)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.registerMap().currentSlots()[110].description = InternedText(std::string(100'000, 'n'));
    EXPECT_TRUE(tells(*editor.mapGrid, 1, 7, std::string(2000, 'n') + "…"));
    std::string lines;
    for (int line = 0; line < 1000; ++line)
        lines += "line\n";
    editor.registerMap().currentSlots()[100].description = InternedText(lines);
    EXPECT_TRUE(tells(*editor.mapGrid, 0, 7, lines.substr(0, 40 * 5 - 1) + "…"));
}
