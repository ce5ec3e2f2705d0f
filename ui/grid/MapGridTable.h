#pragma once

#include "map/RegisterMap.h"
#include "ui/grid/GridCellStyles.h"

#include <wx/grid.h>

#include <optional>
#include <vector>

/// The map grid's rows: the shown addresses of the current space, answered from the map for the cell being painted.
class MapGridTable : public wxGridTableBase
{
public:
    /// @param registerMap  outlives the table
    explicit MapGridTable(const RegisterMap& registerMap) : map(registerMap) {}

    /// Shows other addresses of the current space.
    /// @param addresses  0..65535, ascending
    void show(std::vector<int> addresses);

    /// The address that a row shows.
    /// @param row  a row of the grid
    int addressOf(int row) const { return rows[static_cast<std::size_t>(row)]; }

    /// The row that shows an address, if any does.
    std::optional<int> rowOf(int address) const;

    int GetNumberRows() override { return static_cast<int>(rows.size()); }
    int GetNumberCols() override;
    wxString GetValue(int row, int column) override;
    void SetValue(int row, int column, const wxString& value) override;
    wxString GetColLabelValue(int column) override;
    wxGridCellAttr* GetAttr(int row, int column, wxGridCellAttr::wxAttrKind kind) override;

private:
    const RegisterEntry& slotOf(int row) const;

    const RegisterMap& map;
    std::vector<int> rows;
    GridCellStyles styles;
};
