// Scrolling a grid by rows. The toolkit scrolls as little as it takes; after a change of space an address
// is to be the first one seen, and after an exchange of rows the view is to stay where it was.

#include "ui/grid/GridScrolling.h"

#include <wx/grid.h>

void scrollToTop(wxGrid& grid, int row)
{
    // This also brings the first column back into view when the grid is scrolled sideways.
    grid.MakeCellVisible(row, 0);
    int unit = 0;
    grid.GetScrollPixelsPerUnit(nullptr, &unit);
    // The toolkit stops by itself where there are not enough rows below to fill the window.
    if (unit > 0)
        grid.Scroll(wxDefaultCoord, row * grid.GetRowSize(row) / unit);
}

void bringIntoView(wxGrid& grid, int row)
{
    // No column is named: sideways the view stays.
    grid.MakeCellVisible(row, -1);
}

void setCursorWithoutScrolling(wxGrid& grid, int row)
{
    // The toolkit scrolls to its cursor whenever it is set.
    const wxPoint view = grid.GetViewStart();
    grid.SetGridCursor(row, 0);
    grid.Scroll(view);
}

void goToFirstRow(wxGrid& grid)
{
    if (grid.GetNumberRows() == 0)
        return;
    grid.SetGridCursor(0, 0);
    scrollToTop(grid, 0);
}
