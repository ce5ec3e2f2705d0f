#include "ui/grid/MapGridTable.h"

#include "map/MapRow.h"
#include "ui/ToolkitText.h"
#include "ui/grid/VirtualRows.h"

#include <algorithm>
#include <array>

namespace
{

constexpr std::array<const char*, mapColumnCount> labels{"*",    "Address", "Name",  "Type",
                                                         "Size", "Write",   "Order", "Description"};

} // namespace

void MapGridTable::show(std::vector<int> addresses)
{
    const int before = GetNumberRows();
    rows = std::move(addresses);
    announceNewRows(*this, before, GetNumberRows());
}

std::optional<int> MapGridTable::rowOf(int address) const
{
    const auto found = std::lower_bound(rows.begin(), rows.end(), address);
    if (found == rows.end() || *found != address)
        return std::nullopt;
    return static_cast<int>(found - rows.begin());
}

int MapGridTable::GetNumberCols()
{
    return mapColumnCount;
}

wxString MapGridTable::GetValue(int row, int column)
{
    return toolkitText(fillMapRow(slotOf(row))[static_cast<std::size_t>(column)].text);
}

void MapGridTable::SetValue(int, int, const wxString&)
{
    // Registers are edited by commands, never in a cell.
}

wxString MapGridTable::GetColLabelValue(int column)
{
    return labels[static_cast<std::size_t>(column)];
}

wxGridCellAttr* MapGridTable::GetAttr(int row, int column, wxGridCellAttr::wxAttrKind)
{
    const bool centred = column == static_cast<int>(MapColumn::Marker);
    return styles.share(fillMapRow(slotOf(row))[static_cast<std::size_t>(column)].colour,
                        centred ? wxALIGN_CENTRE : wxALIGN_LEFT);
}

const RegisterEntry& MapGridTable::slotOf(int row) const
{
    return map.currentSlots()[static_cast<std::size_t>(addressOf(row))];
}
