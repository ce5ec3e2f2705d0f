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
    watch(header);
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
    header.CaptureMouse();
}

void ColumnDrag::OnLeftUp(wxMouseEvent& event)
{
    event.Skip();
    pulled.reset();
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
    for (int column = 0; column < lastSeenColumn(columns); ++column)
    {
        end += grid.GetColSize(column);
        if (grid.CanDragColSize(column) && std::abs(end - place) <= header.FromDIP(reach))
            return column;
    }
    return std::nullopt;
}

void ColumnDrag::resize(int column, int width)
{
    grid.SetColSize(column, std::max(width, columnWidths::needed(grid, columns[static_cast<std::size_t>(column)])));
    header.settle();
}
