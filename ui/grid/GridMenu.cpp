// Where a context menu opens, and for which rows. Every command works on the selection, so a menu must never open over
// a row that its commands will leave alone.

#include "ui/grid/GridMenu.h"

#include <wx/grid.h>
#include <wx/menu.h>

#include <algorithm>

namespace
{

void selectRowAt(wxGrid& grid, wxPoint place)
{
    const int row = grid.YToRow(grid.CalcUnscrolledPosition(place).y);
    // A click inside the selection keeps it: lock, cut and compress are meant for many rows.
    if (row == wxNOT_FOUND || grid.IsInSelection(row, 0))
        return;
    // The cursor goes along, so that the arrow keys go on from here.
    grid.SetGridCursor(row, 0);
    grid.SelectRow(row);
}

wxPoint belowCursor(wxGrid& grid)
{
    const int row = grid.GetGridCursorRow();
    // The cursor may stand on a row that is gone, or on none.
    if (row < 0 || row >= grid.GetNumberRows())
        return {0, 0};
    grid.MakeCellVisible(row, grid.GetGridCursorCol());
    const wxRect cell = grid.CellToRect(row, grid.GetGridCursorCol());
    return grid.CalcScrolledPosition(wxPoint(cell.GetLeft(), cell.GetBottom()));
}

} // namespace

void popUpMenuUnderMouse(wxGrid& grid, wxMenu& menu, wxPoint place)
{
    // First, so that the user sees beside the open menu what it is about.
    selectRowAt(grid, place);
    grid.GetGridWindow()->PopupMenu(&menu, place);
}

void popUpMenuAtCursor(wxGrid& grid, wxMenu& menu)
{
    grid.GetGridWindow()->PopupMenu(&menu, belowCursor(grid));
}
