#pragma once

#include <wx/grid.h>

/// Draws the text cells of a grid whose rows are selected whole.
///
/// The toolkit paints a selection grey while the keyboard is elsewhere, which on dark cells cannot be told from no
/// selection; here selected rows keep the grid's selection colours, so that one sees what a button will work on.
class RowCellRenderer : public wxGridCellStringRenderer
{
public:
    void Draw(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, const wxRect& rect, int row, int col,
              bool isSelected) override;
    wxGridCellRenderer* Clone() const override { return new RowCellRenderer; }

private:
    /// Draws one line of plain characters, vertically centred, where the toolkit would.
    ///
    /// Measuring a text costs more than drawing it, and the toolkit measures each one twice; the height of such a line
    /// is the font's and is measured once.
    /// @param alignment  wxALIGN_CENTRE; anything else aligns left
    void drawLine(wxDC& dc, const wxString& text, const wxRect& rect, int alignment);

    wxFont measuredFont;
    int lineHeight = 0; ///< pixels, of `measuredFont`
};
