#include "ui/grid/MapGridTable.h"

#include "map/MapRow.h"
#include "ui/Theme.h"
#include "ui/ToolkitText.h"

#include <algorithm>

static_assert(mapColumns.size() == mapColumnCount);

std::optional<int> MapGridTable::rowOf(int address) const
{
    const std::vector<int>& addresses = rowKeys();
    const auto found = std::lower_bound(addresses.begin(), addresses.end(), address);
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
