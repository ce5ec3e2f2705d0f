#pragma once

#include "source/TagDatabase.h"
#include "ui/grid/GridCellStyles.h"

#include <wx/grid.h>

#include <vector>

/// The tag grid's rows: the shown tags, answered from the database for the cell that is being painted.
class TagGridTable : public wxGridTableBase
{
public:
    /// @param tagDatabase  outlives the table
    explicit TagGridTable(const TagDatabase& tagDatabase) : database(tagDatabase) {}

    /// Shows other tags.
    /// @param tagIndices  indices into the tag table, in row order
    void show(std::vector<int> tagIndices);

    /// Index of the tag that a row shows.
    /// @param row  a row of the grid
    int tagOf(int row) const { return rows[static_cast<std::size_t>(row)]; }

    int GetNumberRows() override { return static_cast<int>(rows.size()); }
    int GetNumberCols() override;
    wxString GetValue(int row, int column) override;
    void SetValue(int row, int column, const wxString& value) override;
    wxString GetColLabelValue(int column) override;
    wxGridCellAttr* GetAttr(int row, int column, wxGridCellAttr::wxAttrKind kind) override;

private:
    const TagDatabase& database;
    std::vector<int> rows;
    GridCellStyles styles;
};
