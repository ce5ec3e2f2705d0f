#pragma once

#include "ui/grid/GridCellStyles.h"
#include "ui/grid/GridColumns.h"

#include <wx/grid.h>

#include <vector>

/// What a cell shows.
struct GridCell
{
    wxString text;
    Rgb colour;
};

/// The rows of a read-only grid, answered from the model for the cell that is being painted. A row is known by a number
/// of the model's, its key.
class VirtualGridTable : public wxGridTableBase
{
public:
    /// @param gridColumns  outlive the table
    explicit VirtualGridTable(GridColumns gridColumns) : columns(gridColumns) {}

    /// Shows other rows: the selection goes, the scroll position stays as far as the new rows reach.
    void show(std::vector<int> rowKeys);

    /// What a cell has to say beside its text; empty for most.
    /// @param row     a row of the grid
    /// @param column  a column of the grid
    wxString noteOf(int row, int column) const { return noteOfKey(keyOf(row), column); }

    int GetNumberRows() override { return static_cast<int>(keys.size()); }
    int GetNumberCols() override { return static_cast<int>(columns.size()); }
    wxString GetValue(int row, int column) override { return cellOf(keyOf(row), column).text; }
    void SetValue(int row, int column, const wxString& value) override;
    wxString GetColLabelValue(int column) override { return columns[static_cast<std::size_t>(column)].label; }
    wxGridCellAttr* GetAttr(int row, int column, wxGridCellAttr::wxAttrKind kind) override;

protected:
    /// What a cell of the row with that key shows.
    /// @param column  a column of the grid
    virtual GridCell cellOf(int key, int column) const = 0;

    /// What a cell of the row with that key has to say beside its text.
    virtual wxString noteOfKey(int /*key*/, int /*column*/) const { return {}; }

    /// @param row  a row of the grid
    int keyOf(int row) const { return keys[static_cast<std::size_t>(row)]; }

    const std::vector<int>& rowKeys() const { return keys; }

private:
    void announceNewRows(int before);

    GridColumns columns;
    std::vector<int> keys;
    GridCellStyles styles;
};
