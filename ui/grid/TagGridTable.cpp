#include "ui/grid/TagGridTable.h"

#include "source/TagRow.h"
#include "ui/ToolkitText.h"
#include "ui/grid/VirtualRows.h"

#include <array>

namespace
{

constexpr std::array<const char*, tagColumnCount> labels{"Name", "Type", "Size", "Flags", "Description", "DbIndex"};

} // namespace

void TagGridTable::show(std::vector<int> tagIndices)
{
    const int before = GetNumberRows();
    rows = std::move(tagIndices);
    announceNewRows(*this, before, GetNumberRows());
}

int TagGridTable::GetNumberCols()
{
    return static_cast<int>(labels.size());
}

wxString TagGridTable::GetValue(int row, int column)
{
    return toolkitText(tagCell(database, tagOf(row), column).text);
}

void TagGridTable::SetValue(int, int, const wxString&)
{
    // The database is never changed here.
}

wxString TagGridTable::GetColLabelValue(int column)
{
    return labels[static_cast<std::size_t>(column)];
}

wxGridCellAttr* TagGridTable::GetAttr(int row, int column, wxGridCellAttr::wxAttrKind)
{
    const bool centred = column >= static_cast<int>(TagColumn::Type) && column <= static_cast<int>(TagColumn::Flags);
    return styles.share(tagCell(database, tagOf(row), column).colour, centred ? wxALIGN_CENTRE : wxALIGN_LEFT);
}
