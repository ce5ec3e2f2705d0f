#pragma once

#include "map/RegisterMap.h"
#include "ui/grid/VirtualGridTable.h"

#include <optional>

/// The map grid's rows: the shown addresses of the current space, 0..65535 and ascending.
class MapGridTable : public VirtualGridTable
{
public:
    /// @param registerMap  outlives the table
    explicit MapGridTable(const RegisterMap& registerMap) : VirtualGridTable(mapColumns), map(registerMap) {}

    /// The address that a row shows.
    /// @param row  a row of the grid
    int addressOf(int row) const { return keyOf(row); }

    /// The row that shows an address, if any does.
    std::optional<int> rowOf(int address) const;

protected:
    GridCell cellOf(int address, int column) const override;
    wxString noteOfKey(int address, int column) const override;

private:
    const RegisterEntry& slotAt(int address) const { return map.currentSlots()[address]; }

    const RegisterMap& map;
};
