#include "ui/grid/CellTooltips.h"

#include "ui/grid/CellText.h"
#include "ui/grid/RowCellRenderer.h"
#include "ui/grid/VirtualGridTable.h"

namespace
{

/// The tooltip of the cell at a place of the grid's window; empty for none.
wxString tooltipAt(wxGrid& grid, const wxPoint& place)
{
    const wxGridCellCoords cell = grid.XYToCell(grid.CalcUnscrolledPosition(place));
    const auto* const table = dynamic_cast<const VirtualGridTable*>(grid.GetTable());
    if (cell == wxGridNoCellCoords || table == nullptr)
        return {};
    const wxString note = table->noteOf(cell.GetRow(), cell.GetCol());
    if (!note.empty())
        return note;
    return showsWholeText(grid, cell.GetRow(), cell.GetCol()) ? wxString()
                                                              : grid.GetCellValue(cell.GetRow(), cell.GetCol());
}

} // namespace

void showCellTooltips(wxGrid& grid)
{
    wxWindow* const cells = grid.GetGridWindow();
    cells->Bind(wxEVT_MOTION,
                [&grid, cells](wxMouseEvent& event)
                {
                    event.Skip();
                    const wxString tooltip = cellText::forTooltip(tooltipAt(grid, event.GetPosition()));
                    if (tooltip != cells->GetToolTipText())
                        cells->SetToolTip(tooltip);
                });
}
