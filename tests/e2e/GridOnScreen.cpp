#include "tests/e2e/GridOnScreen.h"

#include "tests/e2e/Patience.h"

#include <stdexcept>
#include <string>

namespace
{

constexpr int rowHeight = 25;

/// Pixels from a row's left end to where it is clicked and up to where it is looked at: marker, address and name.
constexpr int clickedPlace = 50;
constexpr int readWidth = 200;

/// Pixels left out above and below, where the frame of the cursor's cell is.
constexpr int rowEdge = 4;

constexpr Rgb background{32, 32, 32};
constexpr Rgb selection{51, 153, 255};

} // namespace

GridOnScreen::GridOnScreen(PrivateScreen& itsScreen, const Rectangle& itsArea) : screen(itsScreen), area(itsArea) {}

Rectangle GridOnScreen::placeOfRows(int first, int count) const
{
    return {area.x, area.y + first * rowHeight, area.width, count * rowHeight};
}

Point GridOnScreen::placeIn(int row) const
{
    return {area.x + clickedPlace, area.y + row * rowHeight + rowHeight / 2};
}

int GridOnScreen::rowsInView() const
{
    return area.height / rowHeight;
}

bool GridOnScreen::isFilled(const Picture& picture, int row) const
{
    for (int y = row * rowHeight + rowEdge; y < (row + 1) * rowHeight - rowEdge; ++y)
    {
        for (int x = rowEdge; x < readWidth; ++x)
        {
            if (picture.at(x, y) != background)
                return true;
        }
    }
    return false;
}

bool GridOnScreen::isSelected(const Picture& picture, int row) const
{
    // Text covers the smaller part of a row.
    int selected = 0;
    for (int x = rowEdge; x < readWidth; ++x)
        selected += picture.at(x, row * rowHeight + rowHeight / 2) == selection ? 1 : 0;
    return selected > readWidth / 2;
}

int GridOnScreen::filledRows() const
{
    const Picture picture = look();
    int row = 0;
    while (row < rowsInView() && isFilled(picture, row))
        ++row;
    return row;
}

std::vector<int> GridOnScreen::selectedRows() const
{
    const Picture picture = look();
    std::vector<int> rows;
    for (int row = 0; row < rowsInView(); ++row)
    {
        if (isSelected(picture, row))
            rows.push_back(row);
    }
    return rows;
}

void GridOnScreen::select(int row, Modifier modifier)
{
    screen.click(placeIn(row), modifier);
    if (!waitFor([&] { return isSelected(look(), row); }))
        throw std::runtime_error("not selected: row " + std::to_string(row));
}

void GridOnScreen::doubleClick(int row)
{
    screen.doubleClick(placeIn(row));
}

void GridOnScreen::rightClick(int row)
{
    screen.rightClick(placeIn(row));
}
