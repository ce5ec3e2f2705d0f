#include "ui/grid/TagGridTable.h"

#include "source/TagRow.h"
#include "ui/Theme.h"
#include "ui/ToolkitText.h"

static_assert(tagColumns.size() == tagColumnCount);

GridCell TagGridTable::cellOf(int tagIndex, int column) const
{
    const TagCell cell = tagCell(database, tagIndex, column);
    return {toolkitText(cell.text), theme::cellColour(cell.tone)};
}
