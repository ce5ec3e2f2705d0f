// Nothing fixed is cut, whatever size the desktop gives its fonts: the tests run at several sizes.

#include "tests/ui/ControlsBelow.h"
#include "tests/ui/EditorWindow.h"
#include "tests/ui/SourceSide.h"
#include "tests/ui/UiTest.h"
#include "ui/grid/GridHeader.h"

#include <gtest/gtest.h>
#include <wx/checkbox.h>
#include <wx/grid.h>
#include <wx/scrolwin.h>
#include <wx/stattext.h>

#include <cstdlib>

namespace
{

/// How much larger than usual the desktop's fonts are.
double textScale()
{
    const char* const scale = std::getenv("GDK_DPI_SCALE");
    return scale ? std::atof(scale) : 1.0;
}

int widthInCells(const wxGrid& grid, const wxString& text)
{
    const wxFont font = grid.GetDefaultCellFont();
    int width = 0;
    int height = 0;
    grid.GetTextExtent(text, &width, &height, nullptr, nullptr, &font);
    return width;
}

std::vector<wxStaticText*> titlesOver(const wxGrid& grid)
{
    return controlsBelow<wxStaticText>(*firstBelow<GridHeader>(*grid.GetParent()));
}

void expectWholeTitles(const wxGrid& grid)
{
    const wxStaticText* before = nullptr;
    for (const wxStaticText* const title : titlesOver(grid))
    {
        const wxRect place = title->GetRect();
        EXPECT_GE(place.width, title->GetBestSize().GetWidth()) << title->GetLabelText();
        EXPECT_GE(place.height, title->GetBestSize().GetHeight()) << title->GetLabelText();
        EXPECT_LE(place.GetBottom(), title->GetParent()->GetClientSize().GetHeight()) << title->GetLabelText();
        EXPECT_FALSE(before && place.Intersects(before->GetRect())) << title->GetLabelText();
        before = title;
    }
}

} // namespace

TEST(LargeFonts, TextIsAsMuchLargerAsTheDesktopAsksFor)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const wxFont font = editor.mapGrid->GetDefaultCellFont();
    const int usual = 16; // pixels of a line of the face that stands in for the missing one
    EXPECT_NEAR(editor.mapGrid->GetTextExtent("x").GetHeight(), usual * textScale(), 3);
    EXPECT_EQ(font.GetPointSize(), 10);
}

TEST(LargeFonts, EveryDigitOfAnAddressHasRoom)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const int room = editor.mapGrid->GetColSize(1) - 4;
    for (const char* const address : {"00000", "44444", "65535", "48888"})
        EXPECT_GE(room, widthInCells(*editor.mapGrid, address)) << address;
}

TEST(LargeFonts, FixedTextsHaveRoom)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const wxGrid& map = *editor.mapGrid;
    for (const char* const type : {"INT16", "INT32", "FLOAT", "DOUBLE", "STRING"})
        EXPECT_GE(map.GetColSize(3) - 4, widthInCells(map, type)) << type;
    EXPECT_GE(map.GetColSize(0) - 4, widthInCells(map, "!!"));
    EXPECT_GE(map.GetColSize(5) - 4, widthInCells(map, "Write"));
    EXPECT_GE(map.GetColSize(6) - 4, widthInCells(map, "BWL"));
    const wxGrid& tags = *editor.sourceGrid;
    for (const char* const type : {"Integer", "Float", "String", "Unknown"})
        EXPECT_GE(tags.GetColSize(1) - 4, widthInCells(tags, type)) << type;
    EXPECT_GE(tags.GetColSize(2) - 4, widthInCells(tags, "255"));
}

TEST(LargeFonts, NamesAndFlagsOfUsualLengthHaveRoom)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const wxString name = "TANK_03_LEVEL_HIGH";
    EXPECT_GE(editor.mapGrid->GetColSize(2) - 4, widthInCells(*editor.mapGrid, name));
    EXPECT_GE(editor.sourceGrid->GetColSize(0) - 4, widthInCells(*editor.sourceGrid, name));
    EXPECT_GE(editor.sourceGrid->GetColSize(3) - 4, widthInCells(*editor.sourceGrid, "ALM-SET"));
}

TEST(LargeFonts, SixGroupsShowWithoutScrolling)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const int height = groupBox(editor, "SET")->GetPosition().y - groupBox(editor, "ALM")->GetPosition().y;
    ASSERT_GT(height, 0);
    EXPECT_GE(editor.groupFilters->GetClientSize().GetHeight(), 6 * height);
}

TEST(LargeFonts, UsualWidthsAreTheLeast)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const std::vector<int> map{20, 60, 170, 60, 40, 50, 50, 30};
    for (std::size_t column = 0; column < map.size(); ++column)
        EXPECT_GE(editor.mapGrid->GetColSize(static_cast<int>(column)), editor.FromDIP(map[column])) << column;
}

TEST(LargeFonts, TitlesAreWholeInAnyWidthOfTheWindow)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    for (const int width : {1719, 1200, 900})
    {
        editor.SetSize(width, 600);
        ASSERT_TRUE(waitUntil([&] { return editor.GetSize().GetWidth() == width; })) << width;
        expectWholeTitles(*editor.mapGrid);
        expectWholeTitles(*editor.sourceGrid);
    }
}

TEST(LargeFonts, RowsAreHighEnough)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    for (const wxGrid* const grid : {editor.mapGrid, editor.sourceGrid})
    {
        int height = 0;
        int width = 0;
        const wxFont font = grid->GetDefaultCellFont();
        grid->GetTextExtent(wxString::FromUTF8("Äg"), &width, &height, nullptr, nullptr, &font);
        EXPECT_GE(grid->GetDefaultRowSize(), height + 4);
        EXPECT_GE(grid->GetDefaultRowSize(), grid->FromDIP(25));
        int unit = 0;
        grid->GetScrollPixelsPerUnit(nullptr, &unit);
        EXPECT_EQ(unit, grid->GetDefaultRowSize()) << "a row would be cut at the top";
    }
}
