// The titles above a grid. The grid's own labels are hidden, so this row does by itself what labels do: it follows the
// widths of the columns, the size of the grid and its scrolling sideways.

#include "ui/grid/GridHeader.h"

#include "ui/Theme.h"
#include "ui/ToolkitText.h"
#include "ui/grid/ColumnWidths.h"

#include <wx/grid.h>
#include <wx/stattext.h>

#include <algorithm>

namespace
{

/// Pixels left free beside the last column, the width of a scroll bar.
/// Free also while there is no scroll bar: the texts do not jump when the list gets long enough for one.
constexpr int scrollBarRoom = 20;

} // namespace

GridHeader::GridHeader(wxWindow* parent, wxGrid& columnsOf, GridColumns gridColumns)
    : QuietPanel(parent), grid(columnsOf), columns(gridColumns), drag(*this, columnsOf, gridColumns)
{
    SetBackgroundColour(theme::colour(theme::columnHeaderBackground));
    // The column of marks and the hidden one have no title; their room stays empty.
    for (std::size_t column = 0; column < columns.size(); ++column)
    {
        if (!columns[column].title.empty())
            titles.push_back({static_cast<int>(column), createTitle(columns[column].title)});
    }
    titleHeight = titles.front().text->GetBestSize().GetHeight();
    SetMinSize(wxSize(-1, titleHeight + 2 * FromDIP(titleGap)));
    const auto settleAfterwards = [this](wxSizeEvent& event)
    {
        event.Skip();
        settle();
    };
    Bind(wxEVT_SIZE, settleAfterwards);
    // The grid gets its new size after this row. What was settled with the old one is settled again.
    grid.Bind(wxEVT_SIZE, settleAfterwards);
}

wxStaticText* GridHeader::createTitle(std::string_view title)
{
    auto* const text = new wxStaticText(this, wxID_ANY, toolkitText(title), wxDefaultPosition, wxDefaultSize,
                                        wxALIGN_CENTRE_HORIZONTAL | wxST_NO_AUTORESIZE);
    text->SetFont(theme::columnTitle());
    text->SetForegroundColour(theme::colour(theme::columnHeaderText));
    text->SetBackgroundColour(theme::colour(theme::columnHeaderBackground));
    drag.watch(*text);
    return text;
}

void GridHeader::settle()
{
    stretchLastColumn();
    placeTitles();
}

void GridHeader::stretchLastColumn()
{
    const int last = lastSeenColumn(columns);
    int width = grid.GetSize().GetWidth() - FromDIP(scrollBarRoom);
    for (int column = 0; column < last; ++column)
        width -= grid.GetColSize(column);
    // In a narrow window it is not folded away; the grid can then be scrolled sideways.
    const int least = columnWidths::needed(grid, columns[static_cast<std::size_t>(last)]);
    grid.SetColSize(last, std::max(width, least));
}

void GridHeader::placeTitles()
{
    placedLeft = columnsLeft();
    int left = placedLeft;
    int column = 0;
    for (const Title& title : titles)
    {
        for (; column < title.column; ++column)
            left += grid.GetColSize(column);
        const int width = std::max(grid.GetColSize(column) - FromDIP(titleGap), 0);
        // The last title goes on to the end of the row, over the room of the scroll bar too.
        const bool last = &title == &titles.back();
        title.text->SetMinSize(wxSize(last ? 0 : width, -1));
        title.text->SetSize(left, FromDIP(titleGap), last ? std::max(GetClientSize().GetWidth() - left, width) : width,
                            titleHeight);
    }
}

void GridHeader::OnInternalIdle()
{
    QuietPanel::OnInternalIdle();
    // A grid of toolkit 3.2 sends no event when its cursor scrolls it. Idle time comes after every event, so the titles
    // are late by one picture at most.
    if (placedLeft != columnsLeft())
        placeTitles();
}

int GridHeader::columnsLeft() const
{
    return grid.CalcScrolledPosition(wxPoint(0, 0)).x;
}
