#pragma once

#include "ui/grid/TextWidths.h"

#include <wx/grid.h>

/// Draws the text cells of a grid whose rows are selected whole: one line of each text, ending in an ellipsis where the
/// text goes on.
///
/// The toolkit paints a selection grey while the keyboard is elsewhere, which on dark cells cannot be told from no
/// selection; here selected rows keep the grid's selection colours, so that one sees what a button will work on.
class RowCellRenderer : public wxGridCellStringRenderer
{
public:
    /// Pixels free on either side of a text in its cell.
    static constexpr int margin = 2;

    void Draw(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, const wxRect& rect, int row, int col,
              bool isSelected) override;
    wxGridCellRenderer* Clone() const override { return new RowCellRenderer; }

private:
    /// Draws one line, vertically centred.
    /// @param alignment  wxALIGN_CENTRE; anything else aligns left
    void drawLine(wxDC& dc, const wxString& text, const wxRect& rect, int alignment);

    /// Whether a text has plain characters only and surely fits, so that it need not be measured.
    bool surelyFits(wxDC& dc, const wxString& text, int room);

    int plainHeight(wxDC& dc);

    TextWidths widths;
    wxFont measuredFont;
    int lineHeight = 0; ///< pixels of a line of plain characters in `measuredFont`
};

/// Whether a cell shows the whole of its text.
bool showsWholeText(wxGrid& grid, int row, int column);
