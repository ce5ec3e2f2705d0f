// The rows of the tag grid. A row is known by the index of its tag in the tag table. The last column shows that index
// at width 0; copying asks the row for it.

#include "ui/grid/TagGridTable.h"

#include "source/TagRow.h"
#include "ui/Theme.h"
#include "ui/ToolkitText.h"

// Widths and titles here, texts and colours in the model: both count the same columns.
static_assert(tagColumns.size() == tagColumnCount);

GridCell TagGridTable::cellOf(int tagIndex, int column) const
{
    const TagCell cell = tagCell(database, tagIndex, column);
    return {toolkitText(cell.text), theme::cellColour(cell.tone)};
}
