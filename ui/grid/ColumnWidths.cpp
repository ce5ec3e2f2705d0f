// How wide columns are. The table of columns gives pixels that suit texts of the usual size. A desktop may show its
// texts much larger; from then on the title and the texts that a column is made for decide.

#include "ui/grid/ColumnWidths.h"

#include "ui/Theme.h"
#include "ui/ToolkitText.h"
#include "ui/grid/CellText.h"
#include "ui/grid/GridHeader.h"
#include "ui/grid/RowCellRenderer.h"
#include "ui/grid/TextWidths.h"

#include <wx/dcclient.h>
#include <wx/grid.h>

#include <algorithm>

namespace
{

/// Pixels that a text takes. The toolkit with GTK rounds them to the nearest, and labels ask for the next whole one.
int extent(const wxGrid& grid, std::string_view text, const wxFont& font)
{
    if (text.empty())
        return 0;
    int width = 0;
    int height = 0;
    grid.GetTextExtent(toolkitText(text), &width, &height, nullptr, nullptr, &font);
    return width + 1;
}

/// Pixels that a cell needs for a text, margins included.
int cellExtent(const wxGrid& grid, std::string_view text)
{
    return extent(grid, text, grid.GetDefaultCellFont()) + 2 * RowCellRenderer::margin;
}

/// Pixels of the longest text of a column, margins included.
int widestCell(wxGrid& grid, int column)
{
    // Every row counts, also those out of sight; the sums of character widths keep that quick enough for a double
    // click.
    wxClientDC dc(grid.GetGridWindow());
    dc.SetFont(grid.GetDefaultCellFont());
    TextWidths widths;
    int widest = 0;
    for (int row = 0; row < grid.GetNumberRows(); ++row)
        widest = std::max(widest, widths.about(cellText::forCell(grid.GetCellValue(row, column)), dc));
    return widest + 2 * RowCellRenderer::margin;
}

} // namespace

namespace columnWidths
{

int opening(const wxGrid& grid, const GridColumn& column)
{
    // A column without a width holds what the program reads and the user does not. It stays hidden in any font.
    if (column.width == 0)
        return 0;
    return std::max({grid.FromDIP(column.width), needed(grid, column), cellExtent(grid, column.usualText)});
}

int needed(const wxGrid& grid, const GridColumn& column)
{
    const int title = column.title.empty()
                          ? 0
                          : extent(grid, column.title, theme::columnTitle()) + grid.FromDIP(GridHeader::titleGap);
    return std::max(title, cellExtent(grid, column.widestText));
}

int fitting(wxGrid& grid, GridColumns columns, int index)
{
    const int least = needed(grid, columns[static_cast<std::size_t>(index)]);
    // Not wider than the grid: one long description would move all other columns out of sight.
    return std::max(least, std::min(widestCell(grid, index), grid.GetClientSize().GetWidth()));
}

} // namespace columnWidths
