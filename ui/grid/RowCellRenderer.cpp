#include "ui/grid/RowCellRenderer.h"

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
    dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
    dc.SetTextForeground(isSelected ? grid.GetSelectionForeground() : attr.GetTextColour());
    dc.SetFont(attr.GetFont());
    int horizontal = 0;
    int vertical = 0;
    attr.GetAlignment(&horizontal, &vertical);
    const wxRect inner = wxRect(rect).Deflate(1);
    if (vertical == wxALIGN_CENTRE && text.IsAscii() && text.find('\n') == wxString::npos)
        drawLine(dc, text, inner, horizontal);
    else
        grid.DrawTextRectangle(dc, text, inner, horizontal, vertical);
}

void RowCellRenderer::drawLine(wxDC& dc, const wxString& text, const wxRect& rect, int alignment)
{
    if (!measuredFont.IsSameAs(dc.GetFont()))
    {
        measuredFont = dc.GetFont();
        lineHeight = dc.GetTextExtent("x").GetHeight();
    }
    const int x = alignment == wxALIGN_CENTRE ? (rect.width - dc.GetTextExtent(text).GetWidth()) / 2 : 1;
    const wxDCClipper clip(dc, rect);
    dc.DrawText(text, rect.x + x, rect.y + (rect.height - lineHeight) / 2);
}
