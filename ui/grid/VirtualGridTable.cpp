#include "ui/grid/VirtualGridTable.h"

void VirtualGridTable::show(std::vector<int> rowKeys)
{
    const int before = GetNumberRows();
    keys = std::move(rowKeys);
    if (GetView() != nullptr)
        announceNewRows(before);
}

void VirtualGridTable::announceNewRows(int before)
{
    wxGrid& grid = *GetView();
    const int after = GetNumberRows();
    const wxGridUpdateLocker batch(&grid);
    grid.ClearSelection();
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
