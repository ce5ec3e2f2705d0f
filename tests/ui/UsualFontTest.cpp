// At the usual size of texts no column is wider than its usual width.

#include "tests/ui/EditorWindow.h"

#include <gtest/gtest.h>
#include <wx/grid.h>

TEST(UsualFont, KeepsTheUsualWidths)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    EXPECT_EQ(editor.mapGrid->GetColSize(2), editor.FromDIP(170));
    EXPECT_EQ(editor.sourceGrid->GetColSize(0), editor.FromDIP(170));
    EXPECT_EQ(editor.sourceGrid->GetColSize(3), editor.FromDIP(70));
}
