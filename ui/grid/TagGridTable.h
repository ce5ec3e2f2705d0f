#pragma once

#include "source/TagDatabase.h"
#include "ui/grid/VirtualGridTable.h"

/// The tag grid's rows: the shown tags, as indices into the tag table.
class TagGridTable : public VirtualGridTable
{
public:
    /// @param tagDatabase  outlives the table
    explicit TagGridTable(const TagDatabase& tagDatabase) : VirtualGridTable(tagColumns), database(tagDatabase) {}

    /// Index of the tag that a row shows.
    /// @param row  a row of the grid
    int tagOf(int row) const { return keyOf(row); }

protected:
    GridCell cellOf(int tagIndex, int column) const override;

private:
    const TagDatabase& database;
};
