// Lays out a row of buttons that may be wider than its place. Three steps: all in one row; all in one row with each
// image button a few pixels narrower; several rows, filled from the left.
//
// How many rows there are depends on the width, but a sizer is asked for its least height before it has one. So it
// answers for the width that it had last, and asks for another layout when the new width needs another height.

#include "ui/WrappingRowSizer.h"

#include <wx/bmpbuttn.h>

#include <algorithm>
#include <numeric>

namespace
{

bool isImageButton(const wxSizerItem* item)
{
    return dynamic_cast<const wxBitmapButton*>(item->GetWindow()) != nullptr;
}

int countImageButtons(const std::vector<wxSizerItem*>& items)
{
    return static_cast<int>(std::count_if(items.begin(), items.end(), isImageButton));
}

int proportionOf(const std::vector<wxSizerItem*>& items)
{
    return std::accumulate(items.begin(), items.end(), 0,
                           [](int sum, const wxSizerItem* item) { return sum + item->GetProportion(); });
}

} // namespace

wxSize WrappingRowSizer::CalcMin()
{
    // The widest item is all the width that has to be there: the rest can go on in further rows.
    int widest = 0;
    for (wxSizerItem* const item : GetChildren())
        widest = std::max(widest, item->CalcMin().x);
    return {widest, heightOf(rowsFor(m_size.x))};
}

void WrappingRowSizer::RepositionChildren(const wxSize&)
{
    const std::vector<Row> rows = rowsFor(m_size.x);
    const int needed = heightOf(rows);
    // In the middle of the height: the row may be given more than its buttons need.
    wxPoint start(m_position.x, m_position.y + std::max(m_size.y - needed, 0) / 2);
    for (const Row& row : rows)
    {
        place(row, start);
        start.y += heightOf(row);
    }
    askForHeight();
}

std::vector<WrappingRowSizer::Row> WrappingRowSizer::rowsFor(int width) const
{
    const Items items(GetChildren().begin(), GetChildren().end());
    const int buttons = countImageButtons(items);
    const int missing = widthOf({items}) - width;
    if (missing <= 0)
        return {{items}};
    // Rounded up, so that the last button is not cut by what is left of the division.
    if (missing <= buttons * mostNarrowing)
        return {{items, (missing + buttons - 1) / buttons}};
    return wrapped(items, width);
}

std::vector<WrappingRowSizer::Row> WrappingRowSizer::wrapped(const Items& items, int width) const
{
    // Where there are several rows, buttons are at their narrowest in all of them: that makes the fewest rows.
    std::vector<Row> rows{{{}, mostNarrowing}};
    for (wxSizerItem* const item : items)
    {
        Row extended = rows.back();
        extended.items.push_back(item);
        // A spacer that finds no room is lost at the end of its row; at the start of the next one it would be odd.
        if (item->IsSpacer() || rows.back().items.empty() || widthOf(extended) <= width)
            rows.back() = std::move(extended);
        else
            rows.push_back({{item}, mostNarrowing});
    }
    return rows;
}

void WrappingRowSizer::place(const Row& row, wxPoint start) const
{
    const int spare = std::max(m_size.x - widthOf(row), 0);
    const int proportions = std::max(proportionOf(row.items), 1);
    const int height = heightOf(row);
    for (wxSizerItem* const item : row.items)
    {
        wxSize size = item->GetMinSizeWithBorder();
        // Room to spare goes to the stretching spacers, as in the toolkit's own sizers.
        size.x += spare * item->GetProportion() / proportions - (isImageButton(item) ? row.narrowing : 0);
        item->SetDimension(wxPoint(start.x, start.y + (height - size.y) / 2), size);
        start.x += size.x;
    }
}

void WrappingRowSizer::askForHeight()
{
    wxWindow* const window = GetContainingWindow();
    const wxSize wanted(m_size.x, GetMinSize().y);
    // What was asked for once is not asked for again: a parent without room would be laid out for ever.
    if (wanted == m_size || wanted == asked || window->GetParent() == nullptr)
        return;
    asked = wanted;
    // The window is being laid out at this moment; what is around it has to wait until that is done.
    window->CallAfter(
        [window]
        {
            window->InvalidateBestSize();
            window->GetParent()->Layout();
        });
}

int WrappingRowSizer::widthOf(const Row& row)
{
    const int width =
        std::accumulate(row.items.begin(), row.items.end(), 0,
                        [](int sum, const wxSizerItem* item) { return sum + item->GetMinSizeWithBorder().x; });
    return width - row.narrowing * countImageButtons(row.items);
}

int WrappingRowSizer::heightOf(const Row& row)
{
    int height = 0;
    for (const wxSizerItem* const item : row.items)
        height = std::max(height, item->GetMinSizeWithBorder().y);
    return height;
}

int WrappingRowSizer::heightOf(const std::vector<Row>& rows)
{
    return std::accumulate(rows.begin(), rows.end(), 0, [](int sum, const Row& row) { return sum + heightOf(row); });
}
