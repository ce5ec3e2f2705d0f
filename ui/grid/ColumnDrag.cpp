// Pulling at the ends of columns. The grid can do so itself, but only in its own labels, and those are hidden: the
// titles are a row of texts above the grid. All places are counted in pixels of the unscrolled grid, where the end of a
// column is the sum of the widths up to it.

#include "ui/grid/ColumnDrag.h"

#include "ui/grid/ColumnWidths.h"
#include "ui/grid/GridHeader.h"

#include <wx/grid.h>

#include <algorithm>
#include <cstdlib>

namespace
{

/// Pixels on either side of a column's end at which it can be taken.
constexpr int reach = 5;

} // namespace

ColumnDrag::ColumnDrag(GridHeader& titleRow, wxGrid& columnsOf, GridColumns gridColumns)
    : header(titleRow), grid(columnsOf), columns(gridColumns)
{
    // Each title is watched as well; the row itself gets the mouse between two of them.
    watch(header);
    // Toolkit 3.2 asserts when the mouse is taken away and nobody handles it. The column then stays as wide as it is.
    header.Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { pulled.reset(); });
}

void ColumnDrag::watch(wxWindow& window)
{
    window.Bind(wxEVT_MOTION, &ColumnDrag::OnMotion, this);
    window.Bind(wxEVT_LEFT_DOWN, &ColumnDrag::OnLeftDown, this);
    window.Bind(wxEVT_LEFT_UP, &ColumnDrag::OnLeftUp, this);
    window.Bind(wxEVT_LEFT_DCLICK, &ColumnDrag::OnDoubleClick, this);
}

void ColumnDrag::OnMotion(wxMouseEvent& event)
{
    event.Skip();
    const int place = placeOf(event);
    if (pulled)
        // The end keeps its distance to the mouse, so that it does not jump when it is taken beside the line.
        resize(*pulled, place + grip - (rightEndOf(*pulled) - grid.GetColSize(*pulled)));
    else
        header.SetCursor(columnEndingNear(place) ? wxCursor(wxCURSOR_SIZEWE) : wxNullCursor);
}

void ColumnDrag::OnLeftDown(wxMouseEvent& event)
{
    const int place = placeOf(event);
    pulled = columnEndingNear(place);
    if (!pulled)
    {
        event.Skip();
        return;
    }
    grip = rightEndOf(*pulled) - place;
    // The button may go up anywhere, also outside the window.
    header.CaptureMouse();
}

void ColumnDrag::OnLeftUp(wxMouseEvent& event)
{
    event.Skip();
    pulled.reset();
    // A double click ends with a second "up" that had no "down" of its own.
    if (header.HasCapture())
        header.ReleaseMouse();
}

void ColumnDrag::OnDoubleClick(wxMouseEvent& event)
{
    if (const std::optional<int> column = columnEndingNear(placeOf(event)))
        resize(*column, columnWidths::fitting(grid, columns, *column));
    else
        event.Skip();
}

int ColumnDrag::placeOf(const wxMouseEvent& event) const
{
    const auto& window = *static_cast<wxWindow*>(event.GetEventObject());
    const int x = header.ScreenToClient(window.ClientToScreen(event.GetPosition())).x;
    return grid.CalcUnscrolledPosition(wxPoint(x, 0)).x;
}

int ColumnDrag::rightEndOf(int column) const
{
    int end = 0;
    for (int i = 0; i <= column; ++i)
        end += grid.GetColSize(i);
    return end;
}

std::optional<int> ColumnDrag::columnEndingNear(int place) const
{
    int end = 0;
    // The last seen column is left out: it takes what the others leave, so its end stays where the grid ends.
    for (int column = 0; column < lastSeenColumn(columns); ++column)
    {
        end += grid.GetColSize(column);
        // The columns of the map grid are fixed. The grid knows, although its labels are hidden.
        if (grid.CanDragColSize(column) && std::abs(end - place) <= header.FromDIP(reach))
            return column;
    }
    return std::nullopt;
}

void ColumnDrag::resize(int column, int width)
{
    // Never narrower than its title and its usual texts: a type or an address that is cut says nothing.
    grid.SetColSize(column, std::max(width, columnWidths::needed(grid, columns[static_cast<std::size_t>(column)])));
    header.settle();
}
