#pragma once

#include "ui/grid/GridColumns.h"

#include <optional>

class GridHeader;
class wxGrid;
class wxMouseEvent;
class wxWindow;

/// Lets the mouse change the widths of a grid's columns at their titles: pulling at the right end of a title makes its
/// column wider or narrower, a double click there makes it as wide as its texts are.
///
/// Columns that the grid holds fixed stay; so does the last seen one, which takes what the others leave.
class ColumnDrag
{
public:
    /// @param titleRow  outlives this; so do the grid and its columns
    ColumnDrag(GridHeader& titleRow, wxGrid& columnsOf, GridColumns gridColumns);

    /// Follows the mouse over a window that lies in the row of titles, or over that itself.
    void watch(wxWindow& window);

private:
    void OnMotion(wxMouseEvent& event);
    void OnLeftDown(wxMouseEvent& event);
    void OnLeftUp(wxMouseEvent& event);
    void OnDoubleClick(wxMouseEvent& event);

    /// Where the mouse is in the row of titles, counted from the left end of the first column.
    int placeOf(const wxMouseEvent& event) const;

    int rightEndOf(int column) const;

    /// The column whose right end is near a place, if it can be pulled there.
    std::optional<int> columnEndingNear(int place) const;

    void resize(int column, int width);

    GridHeader& header;
    wxGrid& grid;
    GridColumns columns;
    std::optional<int> pulled; ///< the column whose end is held with the mouse button
    int grip = 0;              ///< pixels from the mouse to that end
};
