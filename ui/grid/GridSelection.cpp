// The selection of a grid as rows. A space has 65,536 of them and Ctrl+A selects all, so rows are read and set in
// blocks of neighbours: by single rows the toolkit (3.2) compares each one with all those selected before it.

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
    // Blocks come in the order of the user's clicks and may overlap. Commands want rows from top to bottom, each once:
    // a move in another order would be in its own way. Nearly always they are in order already.
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
        // To the end of the run of neighbours.
        auto last = first;
        while (std::next(last) != rows.end() && *std::next(last) == *last + 1)
            ++last;
        grid.SelectBlock(*first, 0, *last, lastColumn, true);
        first = std::next(last);
    }
}
