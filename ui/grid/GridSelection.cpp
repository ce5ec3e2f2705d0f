#include "ui/grid/GridSelection.h"

#include <wx/grid.h>

#include <algorithm>

std::vector<int> selectedRows(const wxGrid& grid)
{
    std::vector<int> rows;
    for (const wxGridBlockCoords& block : grid.GetSelectedBlocks())
    {
        for (int row = block.GetTopRow(); row <= block.GetBottomRow(); ++row)
            rows.push_back(row);
    }
    if (!std::is_sorted(rows.begin(), rows.end()))
        std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void addToSelection(wxGrid& grid, const std::vector<int>& rows)
{
    const int lastColumn = grid.GetNumberCols() - 1;
    for (auto first = rows.begin(); first != rows.end();)
    {
        auto last = first;
        while (std::next(last) != rows.end() && *std::next(last) == *last + 1)
            ++last;
        grid.SelectBlock(*first, 0, *last, lastColumn, true);
        first = std::next(last);
    }
}
