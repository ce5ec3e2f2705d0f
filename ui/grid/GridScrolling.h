#pragma once

class wxGrid;

/// Which rows of a grid are in view, and where its cursor stands.

/// Scrolls until a row is the first one seen, as far as rows below it allow.
/// @param row  a row of the grid
void scrollToTop(wxGrid& grid, int row);

/// Scrolls as little as it takes to see a row.
/// @param row  a row of the grid
void bringIntoView(wxGrid& grid, int row);

/// Puts the cursor on the first cell of a row and leaves the view where it is, also when the row is not in it.
/// @param row  a row of the grid
void setCursorWithoutScrolling(wxGrid& grid, int row);

/// Shows the first row and puts the cursor on it. A grid without rows stays as it is.
void goToFirstRow(wxGrid& grid);
