#pragma once

#include "tests/e2e/PrivateScreen.h"

#include <vector>

/// One of the two grids, which paint their cells themselves: what can be known of it is what is seen.
/// Rows are counted from 0, the first in view.
class GridOnScreen
{
public:
    /// @param area  where the rows are, without the column titles
    GridOnScreen(PrivateScreen& screen, const Rectangle& area);

    /// How many rows in view show something.
    int filledRows() const;

    /// The rows in view that are painted as selected.
    std::vector<int> selectedRows() const;

    /// Where some of its rows are, over the grid's whole width. The column titles are as high as a row, so they are
    /// row -1.
    Rectangle placeOfRows(int first, int count) const;

    /// What its rows look like at this moment.
    Picture look() const { return screen.look(area); }

    /// Clicks a row and waits until it is selected; throws std::runtime_error when it is not.
    void select(int row, Modifier modifier = Modifier::Plain);

    void doubleClick(int row);
    void rightClick(int row);

private:
    Point placeIn(int row) const;
    int rowsInView() const;
    bool isFilled(const Picture& picture, int row) const;
    bool isSelected(const Picture& picture, int row) const;

    PrivateScreen& screen;
    Rectangle area;
};
