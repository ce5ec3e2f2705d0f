#include "ui/grid/GridScrolling.h"

#include <wx/grid.h>

void scrollToTop(wxGrid& grid, int row)
{
    grid.MakeCellVisible(row, 0);
    int unit = 0;
    grid.GetScrollPixelsPerUnit(nullptr, &unit);
    if (unit > 0)
        grid.Scroll(wxDefaultCoord, row * grid.GetRowSize(row) / unit);
}

void bringIntoView(wxGrid& grid, int row)
{
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
