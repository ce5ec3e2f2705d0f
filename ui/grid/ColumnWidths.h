#pragma once

#include "ui/grid/GridColumns.h"

class wxGrid;

/// How wide the columns of a grid have to be, in the fonts in use, which may be larger than usual.
namespace columnWidths
{

/// Pixels with which a column opens: the width in its table of columns, or more where the title or the usual texts need
/// more; 0 for a column that is never seen.
int opening(const wxGrid& grid, const GridColumn& column);

/// Pixels that a column needs for its title and for the widest of the texts it is made for.
int needed(const wxGrid& grid, const GridColumn& column);

/// Pixels that show a column's title and every one of its texts whole, as far as the grid is wide enough for that.
/// @param index  of the column
int fitting(wxGrid& grid, GridColumns columns, int index);

} // namespace columnWidths
