// The main window on small and on large screens: every button can be reached, and is all target.

#include "tests/ui/ControlsBelow.h"
#include "tests/ui/EditorWindow.h"
#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/grid.h>
#include <wx/splitter.h>
#include <wx/uiaction.h>

#include <algorithm>
#include <set>

namespace
{

wxSplitterWindow& splitterOf(const EditorWindow& editor)
{
    return *dynamic_cast<wxSplitterWindow*>(editor.mapGrid->GetParent()->GetParent());
}

/// Gives the window a size, with the sash in the middle as at the start.
void resize(EditorWindow& editor, const wxSize& size)
{
    editor.SetSize(size);
    ASSERT_TRUE(waitUntil([&] { return editor.GetSize() == size; })) << editor.GetSize().x << 'x' << editor.GetSize().y;
    editor.settleLayout();
}

bool isInside(const wxWindow& control, const wxWindow& parent)
{
    return wxRect(parent.GetClientSize()).Contains(control.GetRect()) &&
           (parent.IsTopLevel() || isInside(parent, *parent.GetParent()));
}

bool showsAllOf(EditorWindow& editor)
{
    const std::vector<wxBitmapButton*> buttons = controlsBelow<wxBitmapButton>(editor);
    return buttons.size() == 25 &&
           std::all_of(buttons.begin(), buttons.end(),
                       [](const wxBitmapButton* button) { return isInside(*button, *button->GetParent()); });
}

/// How many rows the buttons on the side of the map stand in.
std::size_t rowsOfMapButtons(const EditorWindow& editor)
{
    std::set<int> heights;
    for (const wxBitmapButton* const button : controlsBelow<wxBitmapButton>(*editor.button("Toggle view")->GetParent()))
        heights.insert(button->GetPosition().y);
    return heights.size();
}

void clickAt(const wxPoint& place)
{
    wxUIActionSimulator simulator;
    simulator.MouseMove(place.x, place.y);
    simulator.MouseClick();
}

} // namespace

TEST(MainFrameSize, CommonSmallScreenShowsEveryButtonInOneRow)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    resize(editor, wxSize(1366, 768));
    EXPECT_TRUE(waitUntil([&] { return showsAllOf(editor); }));
    EXPECT_EQ(rowsOfMapButtons(editor), 1U);
}

TEST(MainFrameSize, NarrowWindowGoesOnInAnotherRowAndComesBack)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    resize(editor, wxSize(900, 600));
    EXPECT_TRUE(waitUntil([&] { return rowsOfMapButtons(editor) > 1 && showsAllOf(editor); }));
    resize(editor, wxSize(1719, 824));
    EXPECT_TRUE(waitUntil([&] { return rowsOfMapButtons(editor) == 1 && showsAllOf(editor); }));
}

TEST(MainFrameSize, SashThatLeavesLittleRoomHidesNoButton)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    wxSplitterWindow& splitter = splitterOf(editor);
    splitter.SetSashPosition(splitter.GetSize().GetWidth() - 320);
    EXPECT_TRUE(waitUntil([&] { return rowsOfMapButtons(editor) > 2 && showsAllOf(editor); }));
    EXPECT_GT(editor.mapGrid->GetSize().GetHeight(), 200);
}

TEST(MainFrameSize, SmallestWindowShowsEveryButton)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    const wxSize least = editor.GetMinSize();
    EXPECT_GE(least.x, 640);
    EXPECT_GE(least.y, 400);
    EXPECT_LE(least.x, 1024);
    EXPECT_LE(least.y, 600);
    editor.SetSize(2, 1);
    EXPECT_TRUE(waitUntil([&] { return editor.GetSize() == least; })) << editor.GetSize().x;
    editor.settleLayout();
    EXPECT_TRUE(waitUntil([&] { return showsAllOf(editor); }));
    EXPECT_GT(editor.mapGrid->GetSize().GetHeight(), 100);
    EXPECT_GT(editor.sourceGrid->GetSize().GetHeight(), 50);
}

TEST(MainFrameSize, ButtonIsTargetUpToItsNeighbour)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    const wxRect coil = editor.button("Show Coil Registers")->GetScreenRect();
    const wxRect input = editor.button("Show Input Registers")->GetScreenRect();
    EXPECT_EQ(coil.GetRight() + 1, input.GetLeft());
    EXPECT_GE(coil.width, editor.FromDIP(30));
    clickAt(coil.GetTopLeft() + wxPoint(1, 1));
    EXPECT_TRUE(waitUntil([&] { return editor.registerMap().currentSpace == RegisterSpace::Coil; }));
    clickAt(input.GetBottomRight() - wxPoint(1, 1));
    EXPECT_TRUE(waitUntil([&] { return editor.registerMap().currentSpace == RegisterSpace::Input; }));
}
