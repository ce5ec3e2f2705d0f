// What is drawn for the text of a cell: pictures of one cell compared with pictures of another.

#include "ui/grid/RowCellRenderer.h"

#include "tests/ui/SamePicture.h"
#include "tests/ui/UiTest.h"
#include "ui/Theme.h"
#include "ui/ToolkitText.h"

#include <gtest/gtest.h>
#include <wx/dcmemory.h>
#include <wx/frame.h>
#include <wx/grid.h>
#include <wx/image.h>

#include <algorithm>

namespace
{

constexpr int cellWidth = 120;
constexpr int cellHeight = 25;

/// A grid of one cell.
class OneCell : public wxFrame
{
public:
    OneCell() : wxFrame(nullptr, wxID_ANY, "cell"), grid(new wxGrid(this, wxID_ANY))
    {
        grid->CreateGrid(1, 1);
        grid->SetColSize(0, cellWidth);
        grid->SetDefaultCellFont(theme::regular(10));
    }

    /// What the renderer draws for a text.
    wxImage pictureOf(const wxString& text)
    {
        grid->SetCellValue(0, 0, text);
        const wxGridCellAttrPtr look(
            new wxGridCellAttr(colour, *wxBLACK, theme::regular(10), alignment, wxALIGN_CENTRE));
        wxBitmap bitmap(width, height);
        wxMemoryDC dc(bitmap);
        renderer.Draw(*grid, *look, dc, wxRect(0, 0, width, height), 0, 0, selected);
        dc.SelectObject(wxNullBitmap);
        return bitmap.ConvertToImage();
    }

    /// Whether the cell shows the whole of a text when the column has a width.
    bool showsWhole(const wxString& text, int columnWidth)
    {
        grid->SetCellValue(0, 0, text);
        grid->SetCellFont(0, 0, theme::regular(10));
        grid->SetColSize(0, columnWidth);
        return showsWholeText(*grid, 0, 0);
    }

    /// Pixels that a text takes.
    static int widthOf(const wxString& text)
    {
        wxBitmap bitmap(1, 1);
        wxMemoryDC dc(bitmap);
        dc.SetFont(theme::regular(10));
        return dc.GetTextExtent(text).GetWidth();
    }

    /// The longest beginning of a text that has room together with an ellipsis.
    static wxString shortened(const wxString& text)
    {
        std::size_t length = text.length();
        while (widthOf(text.Left(length) + L"\u2026") > cellWidth - 2 * RowCellRenderer::margin)
            --length;
        return text.Left(length) + L"\u2026";
    }

    wxColour colour = *wxWHITE;
    int alignment = wxALIGN_LEFT;
    bool selected = false;
    int width = cellWidth;
    int height = cellHeight;

private:
    wxGrid* grid;
    RowCellRenderer renderer;
};

/// The first line of a picture that is not black.
int firstInkedLine(const wxImage& picture)
{
    const std::size_t line = static_cast<std::size_t>(picture.GetWidth()) * 3;
    const unsigned char* const bytes = picture.GetData();
    const std::size_t all = line * static_cast<std::size_t>(picture.GetHeight());
    return static_cast<int>(std::find_if(bytes, bytes + all, [](unsigned char byte) { return byte != 0; }) - bytes) /
           static_cast<int>(line);
}

/// The smallest rectangle around everything in a picture that is not black.
wxRect inked(const wxImage& picture)
{
    wxRect all;
    for (int y = 0; y < picture.GetHeight(); ++y)
    {
        for (int x = 0; x < picture.GetWidth(); ++x)
        {
            if (picture.GetRed(x, y) + picture.GetGreen(x, y) + picture.GetBlue(x, y) != 0)
                all.Union(wxRect(x, y, 1, 1));
        }
    }
    return all;
}

} // namespace

TEST(RowCellRenderer, SelectedCellAloneHasTheGroundOfTheSelection)
{
    OneCell& cell = *new OneCell;
    const auto isBlack = [](const wxImage& picture)
    { return picture.GetRed(5, 5) + picture.GetGreen(5, 5) + picture.GetBlue(5, 5) == 0; };
    EXPECT_TRUE(isBlack(cell.pictureOf("")));
    cell.selected = true;
    EXPECT_FALSE(isBlack(cell.pictureOf("")));
}

TEST(RowCellRenderer, TextThatHasRoomIsDrawnWhole)
{
    OneCell& cell = *new OneCell;
    EXPECT_FALSE(samePicture(cell.pictureOf("PUMP_1"), cell.pictureOf("")));
    EXPECT_FALSE(samePicture(cell.pictureOf("PUMP_1"), cell.pictureOf("PUMP_2")));
    EXPECT_FALSE(samePicture(cell.pictureOf("PUMP_1"), cell.pictureOf(L"PUMP\u2026")));
}

TEST(RowCellRenderer, TextExactlyAsWideAsItsRoomIsDrawnWhole)
{
    OneCell& cell = *new OneCell;
    const wxString text = "PUMP_HH";
    const wxImage inPlenty = cell.pictureOf(text);
    cell.width = OneCell::widthOf(text) + 2 * RowCellRenderer::margin;
    ASSERT_LT(cell.width, cellWidth);
    EXPECT_TRUE(samePicture(cell.pictureOf(text), inPlenty.GetSubImage(wxRect(0, 0, cell.width, cellHeight))));
}

TEST(RowCellRenderer, TextStandsInTheMiddleOfItsRow)
{
    OneCell& cell = *new OneCell;
    const int usual = firstInkedLine(cell.pictureOf("PUMP"));
    cell.alignment = wxALIGN_CENTRE;
    EXPECT_EQ(firstInkedLine(cell.pictureOf("PUMP")), usual);
    cell.height = cellHeight + 20;
    EXPECT_EQ(firstInkedLine(cell.pictureOf("PUMP")), usual + 10);
    cell.alignment = wxALIGN_LEFT;
    EXPECT_EQ(firstInkedLine(cell.pictureOf("PUMP")), usual + 10);
}

TEST(RowCellRenderer, CentredTextHasTheSameRoomOnBothSides)
{
    OneCell& cell = *new OneCell;
    cell.alignment = wxALIGN_CENTRE;
    for (const wxString& text : {wxString("HOLDING"), wxString("AVAWATA"), toolkitText("Füße")})
    {
        const wxRect ink = inked(cell.pictureOf(text));
        // A letter stands not always in the middle of its own width.
        EXPECT_NEAR(ink.GetLeft(), cellWidth - 1 - ink.GetRight(), 4) << text;
    }
}

TEST(RowCellRenderer, CellShowsWholeTextsUpToItsWidthLessTheMargins)
{
    OneCell& cell = *new OneCell;
    const wxString text = "PUMP_STATION";
    const int least = OneCell::widthOf(text) + 2 * RowCellRenderer::margin;
    EXPECT_TRUE(cell.showsWhole(text, least));
    EXPECT_FALSE(cell.showsWhole(text, least - 1));
}

TEST(RowCellRenderer, TextThatHasNoRoomEndsInAnEllipsis)
{
    OneCell& cell = *new OneCell;
    for (const int alignment : {int(wxALIGN_LEFT), int(wxALIGN_CENTRE)})
    {
        cell.alignment = alignment;
        for (const wxString& text : {wxString("PUMP_STATION_NORTH_SPEED"), toolkitText("Drehzahl des Förderers Süd")})
        {
            const wxString shown = OneCell::shortened(text);
            ASSERT_LT(shown.length(), text.length());
            EXPECT_TRUE(samePicture(cell.pictureOf(text), cell.pictureOf(shown))) << text;
        }
    }
}

TEST(RowCellRenderer, TextOfSeveralLinesShowsTheFirstAndAnEllipsis)
{
    OneCell& cell = *new OneCell;
    const wxImage expected = cell.pictureOf(L"first\u2026");
    for (const wxString& text :
         {wxString("first\nsecond"), wxString("first\r\nsecond"), wxString(L"first\u2028second")})
        EXPECT_TRUE(samePicture(cell.pictureOf(text), expected));
}

TEST(RowCellRenderer, TextOfAnyLengthIsDrawnLikeItsBeginning)
{
    OneCell& cell = *new OneCell;
    const wxString most(wxUniChar('n'), 1000);
    const wxString endless(wxUniChar('n'), 10'000'000);
    EXPECT_TRUE(samePicture(cell.pictureOf(endless), cell.pictureOf(most)));
    const wxString breaks(wxUniChar('\n'), 100'000);
    EXPECT_TRUE(samePicture(cell.pictureOf("first" + breaks), cell.pictureOf(L"first\u2026")));
}

TEST(RowCellRenderer, SelectedTextHasOneColourWhateverItMeans)
{
    OneCell& cell = *new OneCell;
    const wxImage white = cell.pictureOf("PUMP_1");
    cell.colour = *wxRED;
    EXPECT_FALSE(samePicture(cell.pictureOf("PUMP_1"), white));
    cell.selected = true;
    const wxImage red = cell.pictureOf("PUMP_1");
    EXPECT_FALSE(samePicture(red, cell.pictureOf("")));
    cell.colour = *wxGREEN;
    EXPECT_TRUE(samePicture(cell.pictureOf("PUMP_1"), red));
}
