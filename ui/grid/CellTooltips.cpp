// Tooltips of cells. The cells are painted and are no windows of their own, so the window that they are painted in has
// one tooltip, which changes as the mouse goes from cell to cell.

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
    // A note tells what is nowhere to be seen; it comes before a text of which the beginning is seen.
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
                    // The grid itself needs this event: rows are selected by dragging over them.
                    event.Skip();
                    const wxString tooltip = cellText::forTooltip(tooltipAt(grid, event.GetPosition()));
                    // The mouse reports every pixel that it moves; most of them are in the same cell.
                    if (tooltip != cells->GetToolTipText())
                        cells->SetToolTip(tooltip);
                });
}
