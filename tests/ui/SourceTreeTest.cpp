// What a choice in the tree does to the list of tags, and what is no choice.

#include "tests/ui/SourceSide.h"
#include "tests/ui/UiTest.h"
#include "ui/grid/GridSelection.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/grid.h>
#include <wx/treectrl.h>

namespace
{

const Names tankTags{"TANK_LEVEL", "TANK_HIGH"};

/// Lets the toolkit do what it puts off until nothing else is to be done.
void beIdle()
{
    while (wxTheApp->ProcessIdle())
        continue;
}

/// A database whose topmost node has a prefix of its own.
class RootedDatabase
{
public:
    RootedDatabase()
    {
        folder.write("rooted.json", R"({"structure": [{"lable": "Works", "dbprefix": "A_", "structure": [
            {"lable": "All", "dbprefix": ""}]}], "database": [{"Name": "A_1"}, {"Name": "B_1"}]})");
    }

    DocumentFiles startup() const { return {(folder / "rooted.json").string(), "", 0}; }

private:
    TempFolder folder;
};

/// A database whose tree is longer than any window is high.
class LongDatabase
{
public:
    LongDatabase()
    {
        std::string parts = R"({"lable": "Part", "dbprefix": "A_"})";
        for (int count = 0; count < 200; ++count)
            parts += R"(, {"lable": "Part", "dbprefix": "A_"})";
        folder.write("long.json", R"({"structure": [{"lable": "First", "dbprefix": "", "structure": [)" + parts +
                                      R"(]}], "database": [{"Name": "A_1"}]})");
    }

    DocumentFiles startup() const { return {(folder / "long.json").string(), "", 0}; }

private:
    TempFolder folder;
};

/// Opens the tests' plant with the tags of the tank listed and the second of them selected.
EditorWindow& openWithTankChosen(const PlantFiles& files)
{
    EditorWindow& editor = *openEditor(files.startup());
    clickNode(editor, "Tank");
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == tankTags; }));
    editor.sourceGrid->SelectRow(1);
    return editor;
}

/// Asks for a copy of the selected tags, which comes after all that was clicked and pressed before.
Names copiedTags(EditorWindow& editor)
{
    beIdle();
    focusTagGrid(editor);
    pressKey('C', wxMOD_CONTROL);
    EXPECT_TRUE(waitUntil([&] { return !editor.registerMap().clipboard.empty(); }));
    return clipboardNames(editor);
}

void focusTree(const EditorWindow& editor)
{
    editor.sourceTree->SetFocus();
    EXPECT_TRUE(waitUntil([&] { return editor.sourceTree->HasFocus(); }));
    beIdle();
}

} // namespace

TEST(SourceTree, OpensAtItsFirstNodeHoweverLongItIs)
{
    const LongDatabase database;
    const EditorWindow& editor = *openEditor(database.startup());
    beIdle();
    const wxTreeItemId first = treeNode(editor, "First");
    ASSERT_TRUE(first.IsOk());
    EXPECT_TRUE(editor.sourceTree->IsVisible(first));
    EXPECT_GT(editor.sourceTree->GetCount(), 100U);
}

TEST(SourceTree, ClickOnANodeListsTheTagsThatBeginWithItsPrefix)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    EXPECT_TRUE(editor.sourceTree->IsExpanded(treeNode(editor, "Works")));
    clickNode(editor, "Tank");
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == tankTags; }));
    EXPECT_EQ(highlightedNodes(editor), Names({"Tank"}));
    clickNode(editor, "Pump");
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor).size() == 4; }));
    clickNode(editor, "Works");
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == allTags; }));
    clickNode(editor, "Tank");
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == tankTags; }));
}

TEST(SourceTree, NoNodeIsHighlightedBeforeTheFirstChoice)
{
    const RootedDatabase database;
    const EditorWindow& editor = *openEditor(database.startup());
    beIdle();
    EXPECT_EQ(highlightedNodes(editor), Names());
    focusTree(editor);
    EXPECT_EQ(highlightedNodes(editor), Names());
    EXPECT_EQ(shownTags(editor), Names({"A_1", "B_1"}));
}

TEST(SourceTree, ClickOnTheTopmostNodeTakesItsPrefix)
{
    const RootedDatabase database;
    const EditorWindow& editor = *openEditor(database.startup());
    clickNode(editor, "Works");
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == Names({"A_1"}); }));
    EXPECT_EQ(highlightedNodes(editor), Names({"Works"}));
    clickNode(editor, "All");
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == Names({"A_1", "B_1"}); }));
    clickNode(editor, "Works");
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == Names({"A_1"}); }));
}

TEST(SourceTree, KeysChooseNodesFromTheTopmostOneOn)
{
    const RootedDatabase database;
    const EditorWindow& editor = *openEditor(database.startup());
    focusTree(editor);
    pressKey(WXK_DOWN);
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == Names({"A_1"}); }));
    EXPECT_EQ(highlightedNodes(editor), Names({"Works"}));
    pressKey(WXK_DOWN);
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == Names({"A_1", "B_1"}); }));
    pressKey(WXK_UP);
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == Names({"A_1"}); }));
}

TEST(SourceTree, HomeAndEndChooseTheOutermostNodes)
{
    const RootedDatabase database;
    const EditorWindow& editor = *openEditor(database.startup());
    focusTree(editor);
    pressKey(WXK_HOME);
    EXPECT_TRUE(waitUntil([&] { return highlightedNodes(editor) == Names({"Works"}); }));
    pressKey(WXK_END);
    EXPECT_TRUE(waitUntil([&] { return highlightedNodes(editor) == Names({"All"}); }));
    EXPECT_EQ(shownTags(editor), Names({"A_1", "B_1"}));
}

TEST(SourceTree, ClickOnTheChosenNodeLeavesTheListAndItsSelection)
{
    const PlantFiles files("");
    EditorWindow& editor = openWithTankChosen(files);
    clickOn(*editor.sourceFilter); // or the next click would be the second half of a double click
    EXPECT_TRUE(waitUntil([&] { return editor.sourceFilter->HasFocus(); }));
    clickNode(editor, "Tank");
    EXPECT_TRUE(waitUntil([&] { return editor.sourceTree->HasFocus(); }));
    EXPECT_EQ(copiedTags(editor), Names({"TANK_HIGH"}));
}

TEST(SourceTree, FoldingTheParentOfTheChosenNodeLeavesTheListAndItsSelection)
{
    const PlantFiles files("");
    EditorWindow& editor = openWithTankChosen(files);
    clickFoldingSign(editor, "Works");
    beIdle();
    EXPECT_EQ(shownTags(editor), tankTags);
    EXPECT_EQ(highlightedNodes(editor), Names());
    clickOn(*editor.sourceFilter); // or the next click would be the second half of a double click
    clickFoldingSign(editor, "Works");
    beIdle();
    EXPECT_EQ(highlightedNodes(editor), Names({"Tank"}));
    EXPECT_EQ(copiedTags(editor), Names({"TANK_HIGH"}));
    EXPECT_EQ(shownTags(editor), tankTags);
}

TEST(SourceTree, FoldedParentOfTheChosenNodeCanBeChosen)
{
    const PlantFiles files("");
    EditorWindow& editor = openWithTankChosen(files);
    clickFoldingSign(editor, "Works");
    beIdle();
    clickNode(editor, "Works");
    EXPECT_TRUE(waitUntil([&] { return shownTags(editor) == allTags; }));
    EXPECT_EQ(highlightedNodes(editor), Names({"Works"}));
    clickFoldingSign(editor, "Works");
    beIdle();
    EXPECT_EQ(highlightedNodes(editor), Names({"Works"}));
}

TEST(SourceTree, FoldingTheChosenNodeByKeyLeavesTheListAndItsSelection)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    clickNode(editor, "Works");
    EXPECT_TRUE(waitUntil([&] { return highlightedNodes(editor) == Names({"Works"}); }));
    editor.sourceGrid->SelectRow(5);
    focusTree(editor);
    pressKey(WXK_LEFT);
    EXPECT_TRUE(waitUntil([&] { return !editor.sourceTree->IsExpanded(treeNode(editor, "Works")); }));
    EXPECT_EQ(highlightedNodes(editor), Names({"Works"}));
    EXPECT_EQ(copiedTags(editor), Names({"TANK_HIGH"}));
}
