// The keyboard on its way through the window: every control once, in reading order, and nothing else.

#include "tests/ui/EditorWindow.h"
#include "tests/ui/UiTest.h"
#include "ui/ToolkitText.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/checkbox.h>
#include <wx/grid.h>
#include <wx/scrolwin.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include <algorithm>

namespace
{

/// More steps than there are controls.
constexpr std::size_t tooManySteps = 60;

/// What a control is called, as far as it shows or tells it.
std::string nameOf(const wxWindow* window)
{
    if (window == nullptr)
        return "nothing";
    if (dynamic_cast<const wxBitmapButton*>(window))
        return modelText(window->GetToolTipText());
    if (dynamic_cast<const wxCheckBox*>(window))
        return modelText(window->GetLabel());
    return modelText(window->GetClassInfo()->GetClassName());
}

/// Presses Tab once and waits until another window has the keyboard.
/// @return the window that has it
const wxWindow* tab(int modifiers)
{
    const wxWindow* const before = wxWindow::FindFocus();
    pressKey(WXK_TAB, modifiers);
    EXPECT_TRUE(waitUntil([&] { return wxWindow::FindFocus() != before && wxWindow::FindFocus() != nullptr; }))
        << "the keyboard stays with " << nameOf(before);
    return wxWindow::FindFocus();
}

/// The names of everything that gets the keyboard on the way from the map grid back to it.
std::vector<std::string> walk(int modifiers)
{
    const wxWindow* const start = wxWindow::FindFocus();
    std::vector<std::string> names;
    do
    {
        const wxWindow* const before = wxWindow::FindFocus();
        names.push_back(nameOf(tab(modifiers)));
        if (wxWindow::FindFocus() == before)
            break;
    } while (wxWindow::FindFocus() != start && names.size() < tooManySteps);
    return names;
}

const std::vector<std::string> readingOrder{"Export map to text file",
                                            "Settings and Defaults",
                                            "About",
                                            "Help",
                                            "Exit without saving",
                                            "wxTreeCtrl",
                                            "Copy - ctrl c",
                                            "wxTextCtrl",
                                            "wxGrid",
                                            "ALM",
                                            "SET",
                                            "Show Status Registers",
                                            "Show Coil Registers",
                                            "Show Input Registers",
                                            "Show Holding Registers",
                                            "Toggle view",
                                            "Delete registers with errors",
                                            "Move registers down",
                                            "Move registers up",
                                            "Shove registers down",
                                            "Shove registers up",
                                            "Cut - ctrl x",
                                            "Copy - ctrl c",
                                            "Paste - ctrl v",
                                            "Append to block",
                                            "Compress registers into contiguous block",
                                            "Delete - del",
                                            "Edit",
                                            "Tagname search and replace",
                                            "Toggle register lock",
                                            "wxGrid"};

} // namespace

TEST(MainFrameFocus, TabGoesThroughEveryControlOnceInReadingOrder)
{
    const PlantFiles files("HOLDING,00100,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n");
    const EditorWindow& editor = *openEditor(files.startup());
    EXPECT_EQ(walk(0), readingOrder);
    EXPECT_TRUE(editor.mapGrid->GetGridWindow()->HasFocus());
}

TEST(MainFrameFocus, ShiftTabGoesBackTheSameWay)
{
    const PlantFiles files("HOLDING,00100,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n");
    const EditorWindow& editor = *openEditor(files.startup());
    std::vector<std::string> back(readingOrder.rbegin() + 1, readingOrder.rend());
    back.push_back(readingOrder.back());
    EXPECT_EQ(walk(wxMOD_SHIFT), back);
    EXPECT_TRUE(editor.mapGrid->GetGridWindow()->HasFocus());
}

TEST(MainFrameFocus, EmptyGridsAreReachedToo)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    ASSERT_EQ(editor.mapGrid->GetNumberRows(), 0);
    EXPECT_EQ(walk(0), readingOrder);
}

TEST(MainFrameFocus, WindowWithoutTagsLosesNoKeyboard)
{
    const TempFolder folder;
    folder.write("empty.json", "{\"database_groups\": [], \"structure\": [], \"database\": []}");
    const MessageBoxAnswer message(wxID_OK);
    const EditorWindow& editor = *openEditor({(folder / "empty.json").string(), ""});
    ASSERT_EQ(editor.sourceGrid->GetNumberRows(), 0);
    std::vector<std::string> withoutGroups = readingOrder;
    std::erase(withoutGroups, "ALM");
    std::erase(withoutGroups, "SET");
    EXPECT_EQ(walk(0), withoutGroups);
    EXPECT_TRUE(editor.mapGrid->GetGridWindow()->HasFocus());
    std::vector<std::string> back(withoutGroups.rbegin() + 1, withoutGroups.rend());
    back.push_back(withoutGroups.back());
    EXPECT_EQ(walk(wxMOD_SHIFT), back);
}

TEST(MainFrameFocus, ButtonReachedWithTabIsPressedWithSpace)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const wxWindow* const view = editor.button("Toggle view");
    for (std::size_t step = 0; step < tooManySteps && wxWindow::FindFocus() != view; ++step)
        tab(wxMOD_SHIFT);
    ASSERT_EQ(wxWindow::FindFocus(), view);
    pressKey(WXK_SPACE);
    EXPECT_TRUE(waitUntil([&] { return editor.viewLabel->GetLabel() == "EXPANDED"; }));
    EXPECT_EQ(wxWindow::FindFocus(), view);
}
