// Draws cells. A page of the grid is some hundred texts, and with GTK measuring one takes longer than drawing it. So
// texts are measured only where it matters: where they are centred, once for all that read alike, and where they may
// not fit.

#include "ui/grid/RowCellRenderer.h"

#include "ui/grid/CellText.h"

#include <wx/dcclient.h>

#include <algorithm>

namespace
{

/// Pixels by which a text may be wider than its characters one by one.
constexpr int tolerance = 4;

/// As much of a text as has room together with an ellipsis.
wxString shortened(const wxDC& dc, const wxString& text, int room)
{
    wxArrayInt ends; // for each character, pixels from the start of the text to its end
    dc.GetPartialTextExtents(text, ends);
    const int left = room - dc.GetTextExtent(cellText::ellipsis()).GetWidth();
    const auto kept = std::upper_bound(ends.begin(), ends.end(), left) - ends.begin();
    return text.Left(static_cast<std::size_t>(kept)) + cellText::ellipsis();
}

} // namespace

void RowCellRenderer::Draw(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, const wxRect& rect, int row, int col,
                           bool isSelected)
{
    // The whole cell first: what is still to be seen there may have been selected.
    dc.SetPen(*wxTRANSPARENT_PEN);
    dc.SetBrush(isSelected ? grid.GetSelectionBackground() : attr.GetBackgroundColour());
    dc.DrawRectangle(rect);

    const wxString text = cellText::forCell(grid.GetCellValue(row, col));
    if (text.empty())
        return;
    dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
    dc.SetTextForeground(isSelected ? grid.GetSelectionForeground() : attr.GetTextColour());
    dc.SetFont(attr.GetFont());
    int horizontal = 0;
    attr.GetAlignment(&horizontal, nullptr);
    drawLine(dc, text, wxRect(rect).Deflate(margin, 1), horizontal);
}

void RowCellRenderer::drawLine(wxDC& dc, const wxString& text, const wxRect& rect, int alignment)
{
    wxString shown = text;
    wxSize size(0, plainHeight(dc));
    if (!surelyFits(dc, text, rect.width))
    {
        size = dc.GetTextExtent(text);
        if (size.GetWidth() > rect.width)
        {
            shown = shortened(dc, text, rect.width);
            size = dc.GetTextExtent(shown);
        }
    }
    const int x = alignment == wxALIGN_CENTRE ? (rect.width - widths.exactly(shown, dc)) / 2 : 0;
    // A letter may reach a little beyond its measured width, for example into the next column.
    const wxDCClipper clip(dc, rect);
    dc.DrawText(shown, rect.x + x, rect.y + (rect.height - size.GetHeight()) / 2);
}

bool RowCellRenderer::surelyFits(wxDC& dc, const wxString& text, int room)
{
    // Other scripts join or stack their characters, so their widths do not add up.
    return text.IsAscii() && widths.about(text, dc) + tolerance <= room;
}

int RowCellRenderer::plainHeight(wxDC& dc)
{
    if (!measuredFont.IsSameAs(dc.GetFont()))
    {
        // Plain letters have one height in a font.
        measuredFont = dc.GetFont();
        lineHeight = dc.GetTextExtent("x").GetHeight();
    }
    return lineHeight;
}

bool showsWholeText(wxGrid& grid, int row, int column)
{
    const wxString text = grid.GetCellValue(row, column);
    const wxString shown = cellText::forCell(text);
    wxClientDC dc(grid.GetGridWindow());
    dc.SetFont(grid.GetCellFont(row, column));
    // Measured exactly: it is one cell at a time, and a tooltip over a text that is seen whole would only be in the
    // way.
    const int room = grid.GetColSize(column) - 2 * RowCellRenderer::margin;
    return shown == text && dc.GetTextExtent(text).GetWidth() <= room;
}
