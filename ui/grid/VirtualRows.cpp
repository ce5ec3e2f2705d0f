#include "ui/grid/VirtualRows.h"

#include <wx/grid.h>

void announceNewRows(wxGridTableBase& table, int before, int after)
{
    wxGrid* const grid = table.GetView();
    if (grid == nullptr)
        return;
    const wxGridUpdateLocker batch(grid);
    grid->ClearSelection();
    if (after < before)
    {
        wxGridTableMessage message(&table, wxGRIDTABLE_NOTIFY_ROWS_DELETED, after, before - after);
        grid->ProcessTableMessage(message);
    }
    else if (after > before)
    {
        wxGridTableMessage message(&table, wxGRIDTABLE_NOTIFY_ROWS_APPENDED, after - before);
        grid->ProcessTableMessage(message);
    }
    grid->ForceRefresh();
}
