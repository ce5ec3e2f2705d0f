#include "ui/grid/GridMenu.h"

#include <wx/grid.h>
#include <wx/menu.h>

#include <algorithm>

namespace
{

void selectRowAt(wxGrid& grid, wxPoint place)
{
    const int row = grid.YToRow(grid.CalcUnscrolledPosition(place).y);
    if (row == wxNOT_FOUND || grid.IsInSelection(row, 0))
        return;
    grid.SetGridCursor(row, 0);
    grid.SelectRow(row);
}

wxPoint belowCursor(wxGrid& grid)
{
    const int row = grid.GetGridCursorRow();
    if (row < 0 || row >= grid.GetNumberRows())
        return {0, 0};
    grid.MakeCellVisible(row, grid.GetGridCursorCol());
    const wxRect cell = grid.CellToRect(row, grid.GetGridCursorCol());
    return grid.CalcScrolledPosition(wxPoint(cell.GetLeft(), cell.GetBottom()));
}

} // namespace

void popUpMenuUnderMouse(wxGrid& grid, wxMenu& menu, wxPoint place)
{
    selectRowAt(grid, place);
    grid.GetGridWindow()->PopupMenu(&menu, place);
}

void popUpMenuAtCursor(wxGrid& grid, wxMenu& menu)
{
    grid.GetGridWindow()->PopupMenu(&menu, belowCursor(grid));
}
