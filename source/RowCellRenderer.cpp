#include "source/RowCellRenderer.h"

#include <wx/dc.h>

void RowCellRenderer::Draw(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, const wxRect& rect, int row, int col,
                           bool isSelected)
{
    dc.SetPen(*wxTRANSPARENT_PEN);
    dc.SetBrush(isSelected ? grid.GetSelectionBackground() : attr.GetBackgroundColour());
    dc.DrawRectangle(rect);

    const wxString text = grid.GetCellValue(row, col);
    if (text.empty())
        return;
    int horizontal = 0;
    int vertical = 0;
    attr.GetAlignment(&horizontal, &vertical);
    dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
    dc.SetTextForeground(isSelected ? grid.GetSelectionForeground() : attr.GetTextColour());
    dc.SetFont(attr.GetFont());
    grid.DrawTextRectangle(dc, text, wxRect(rect).Deflate(1), horizontal, vertical);
}
