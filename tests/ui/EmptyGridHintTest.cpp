// The line that an empty grid shows in place of rows, as it is seen on the screen.

#include "ui/grid/EmptyGridHint.h"

#include "tests/ui/ScreenPicture.h"
#include "tests/ui/SourceSide.h"
#include "tests/ui/UiTest.h"
#include "ui/Theme.h"

#include <gtest/gtest.h>
#include <wx/grid.h>
#include <wx/textctrl.h>

namespace
{

/// Contrast from which texts are read without effort.
constexpr double readable = 4.5;

/// Pixels by which the ink of a text is narrower than the room that it takes, at the most.
constexpr int textMargin = 5;

ScreenPicture pictureOf(const wxGrid& grid)
{
    return {*grid.GetGridWindow(), grid.GetGridWindow()->GetClientSize()};
}

/// Whether a grid shows one line in its middle, of the width of that text.
bool showsLine(const wxGrid& grid, const wxString& text)
{
    const wxWindow& window = *grid.GetGridWindow();
    int width = 0;
    int height = 0;
    const wxFont font = theme::cell();
    window.GetTextExtent(text, &width, &height, nullptr, nullptr, &font);
    const wxRect ink = pictureOf(grid).inked();
    const int middle = ink.x + ink.width / 2;
    return std::abs(ink.width - width) <= textMargin && ink.height <= height &&
           std::abs(middle - window.GetClientSize().GetWidth() / 2) <= textMargin;
}

} // namespace

TEST(EmptyGridHint, ListWithoutAMatchSaysSo)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    typeOver(*editor.sourceFilter, "nothing");
    EXPECT_TRUE(waitUntil([&] { return showsLine(*editor.sourceGrid, "No tags match the filter"); }));
    EXPECT_GE(pictureOf(*editor.sourceGrid).contrastToGround(), readable);
}

TEST(EmptyGridHint, ListOfADatabaseWithoutTagsSaysSo)
{
    const TempFolder folder;
    folder.write("empty.json", R"({"structure": [{"lable": "Works"}], "database": []})");
    const EditorWindow& editor = *openEditor({(folder / "empty.json").string(), "", 0});
    EXPECT_TRUE(waitUntil([&] { return showsLine(*editor.sourceGrid, "The database holds no tags"); }));
}

TEST(EmptyGridHint, EmptyMapSaysHowTagsGetThere)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    const wxString hint = "Copy tags with Ctrl+C, paste here with Ctrl+V";
    EXPECT_TRUE(waitUntil([&] { return showsLine(*editor.mapGrid, hint); }));
    EXPECT_GE(pictureOf(*editor.mapGrid).contrastToGround(), readable);
    editor.nextView();
    editor.nextView();
    EXPECT_TRUE(waitUntil([&] { return !showsLine(*editor.mapGrid, hint); }));
}

TEST(EmptyGridHint, LineStaysInTheMiddleOfAGridThatChangesItsWidth)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    const wxString hint = "Copy tags with Ctrl+C, paste here with Ctrl+V";
    EXPECT_TRUE(waitUntil([&] { return showsLine(*editor.mapGrid, hint); }));
    const wxSize before = editor.GetSize();
    editor.SetSize(before.GetWidth() - 300, before.GetHeight());
    EXPECT_TRUE(waitUntil([&] { return editor.GetSize() != before && showsLine(*editor.mapGrid, hint); }));
}

TEST(EmptyGridHint, FirstRowTakesTheLineAway)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    typeOver(*editor.sourceFilter, "nothing");
    EXPECT_TRUE(waitUntil([&] { return showsLine(*editor.sourceGrid, "No tags match the filter"); }));
    pressKey(WXK_ESCAPE);
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == allTags; }));
    EXPECT_TRUE(waitUntil([&] { return pictureOf(*editor.sourceGrid).inked().x < 10; }));
}
