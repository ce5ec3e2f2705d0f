// A table that keeps one number for each row and makes texts only for the cells that are painted. Filled the usual way,
// a grid would hold eight texts for each of 65,536 rows and make them anew after every command.

#include "ui/grid/VirtualGridTable.h"

void VirtualGridTable::show(std::vector<int> rowKeys)
{
    const int before = GetNumberRows();
    keys = std::move(rowKeys);
    // Before the table has been given to a grid there is nobody to tell.
    if (GetView() != nullptr)
        announceNewRows(before);
}

void VirtualGridTable::announceNewRows(int before)
{
    wxGrid& grid = *GetView();
    const int after = GetNumberRows();
    const wxGridUpdateLocker batch(&grid);
    // The selection is kept by row numbers, and those are about to mean other rows.
    grid.ClearSelection();
    // The grid is told only how many rows more or fewer there are, at the end. It then keeps its scroll position, which
    // giving it a new table would lose.
    if (after < before)
    {
        wxGridTableMessage message(this, wxGRIDTABLE_NOTIFY_ROWS_DELETED, after, before - after);
        grid.ProcessTableMessage(message);
    }
    else if (after > before)
    {
        wxGridTableMessage message(this, wxGRIDTABLE_NOTIFY_ROWS_APPENDED, after - before);
        grid.ProcessTableMessage(message);
    }
    // Rows that stay in number are others all the same.
    grid.ForceRefresh();
}

void VirtualGridTable::SetValue(int, int, const wxString&)
{
    // What is shown is changed by commands, never in a cell.
}

wxGridCellAttr* VirtualGridTable::GetAttr(int row, int column, wxGridCellAttr::wxAttrKind)
{
    return styles.share(cellOf(keyOf(row), column).colour, columns[static_cast<std::size_t>(column)].alignment);
}
