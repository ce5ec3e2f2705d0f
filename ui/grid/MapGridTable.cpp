// The rows of the map grid. A row is known by its address, ascending, so the row of an address is found by halving and
// no row keeps a text. What a register says in each column is a rule of the map and not of this window.

#include "ui/grid/MapGridTable.h"

#include "map/MapRow.h"
#include "ui/Theme.h"
#include "ui/ToolkitText.h"

#include <algorithm>

// Widths and titles here, texts and colours in the model: both count the same columns.
static_assert(mapColumns.size() == mapColumnCount);

std::optional<int> MapGridTable::rowOf(int address) const
{
    const std::vector<int>& addresses = rowKeys();
    const auto found = std::lower_bound(addresses.begin(), addresses.end(), address);
    // An address without a row is nothing unusual: a free register, or in the compressed list all but the first of an
    // object.
    if (found == addresses.end() || *found != address)
        return std::nullopt;
    return static_cast<int>(found - addresses.begin());
}

GridCell MapGridTable::cellOf(int address, int column) const
{
    const MapCell cell = fillMapRow(slotAt(address))[static_cast<std::size_t>(column)];
    return {toolkitText(cell.text), theme::cellColour(cell.tone)};
}

wxString MapGridTable::noteOfKey(int address, int column) const
{
    return toolkitText(mapCellNote(slotAt(address), static_cast<MapColumn>(column)));
}
