// A whole session without a mouse.

#include "files/ReadFile.h"
#include "tests/ui/EditorWindow.h"
#include "tests/ui/UiTest.h"
#include "ui/RegisterEditor.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/checkbox.h>
#include <wx/grid.h>
#include <wx/scrolwin.h>
#include <wx/textctrl.h>

namespace
{

/// More controls than the window has: who has not come by until then is not in the ring.
constexpr int wholeRing = 80;

/// Goes round with the Tab key until a control has the keyboard.
void tabTo(const wxWindow& control)
{
    for (int step = 0; step < wholeRing && wxWindow::FindFocus() != &control; ++step)
    {
        const wxWindow* const before = wxWindow::FindFocus();
        pressKey(WXK_TAB);
        ASSERT_TRUE(waitUntil([&] { return wxWindow::FindFocus() != before; })) << "Tab does not leave a control";
    }
    ASSERT_EQ(wxWindow::FindFocus(), &control);
}

void pressButton(EditorWindow& editor, const wxString& tooltip)
{
    tabTo(*editor.button(tooltip));
    pressKey(WXK_SPACE);
}

/// Waits until a dialog has been worked and the window has the keyboard again.
bool isBack(EditorWindow& editor, const DialogScript& script)
{
    return waitUntil([&] { return script.hasEnded() && editor.IsActive() && wxWindow::FindFocus() != nullptr; });
}

const RegisterEntry& coil(EditorWindow& editor, int address)
{
    return editor.registerMap().slots(RegisterSpace::Coil)[address];
}

/// Finds one tag by text and group, and copies it.
void copyTheAlarmTag(EditorWindow& editor)
{
    tabTo(*editor.sourceFilter);
    typeText("level");
    ASSERT_TRUE(waitUntil([&] { return editor.sourceGrid->GetNumberRows() == 2; }));
    tabTo(*editor.groupFilters->GetChildren().front());
    pressKey(WXK_SPACE);
    ASSERT_TRUE(waitUntil([&] { return editor.sourceGrid->GetNumberRows() == 1; }));
    tabTo(*editor.sourceGrid);
    pressKey('A', wxMOD_CONTROL);
    pressKey('C', wxMOD_CONTROL);
    ASSERT_TRUE(waitUntil([&] { return editor.registerMap().clipboard.size() == 1; }));
}

void pasteIntoCoils(EditorWindow& editor)
{
    pressButton(editor, "Show Coil Registers");
    ASSERT_TRUE(waitUntil([&] { return editor.registerMap().currentSpace == RegisterSpace::Coil; }));
    tabTo(*editor.mapGrid);
    pressKey('V', wxMOD_CONTROL);
    ASSERT_TRUE(waitUntil([&] { return editor.mapGrid->GetNumberRows() == 1; }));
    EXPECT_EQ(coil(editor, 0).tagname.view(), "TANK_HIGH");
}

void lockAndUnlock(EditorWindow& editor)
{
    tabTo(*editor.mapGrid);
    pressKey('A', wxMOD_CONTROL);
    pressButton(editor, "Toggle register lock");
    ASSERT_TRUE(waitUntil([&] { return coil(editor, 0).locked; }));
    pressKey(WXK_SPACE);
    ASSERT_TRUE(waitUntil([&] { return !coil(editor, 0).locked; }));
}

void editTheDescription(EditorWindow& editor)
{
    const DialogScript script(
        [](wxDialog& dialog)
        {
            const auto& descriptionField = *static_cast<RegisterEditor&>(dialog).descriptionField;
            tabTo(descriptionField);
            pressKey('A', wxMOD_CONTROL);
            typeText("edited");
            pressKey(WXK_RETURN);
        });
    pressButton(editor, "Edit");
    ASSERT_TRUE(isBack(editor, script));
    EXPECT_EQ(coil(editor, 0).description.view(), "edited");
}

void renameTheTag(EditorWindow& editor)
{
    tabTo(*editor.mapGrid);
    pressKey('A', wxMOD_CONTROL);
    const DialogScript script(
        [](wxDialog&)
        {
            typeText("HIGH");
            pressKey(WXK_TAB);
            typeText("LEVEL");
            pressKey(WXK_RETURN);
        });
    pressButton(editor, "Tagname search and replace");
    ASSERT_TRUE(isBack(editor, script));
    EXPECT_EQ(coil(editor, 0).tagname.view(), "TANK_LEVEL");
}

} // namespace

TEST(KeyboardSession, FromTheFilterToSavingWithoutAMouse)
{
    const PlantFiles files("");
    const TempFolder folder;
    EditorWindow* const editor = openEditor(files.startup());
    copyTheAlarmTag(*editor);
    pasteIntoCoils(*editor);
    lockAndUnlock(*editor);
    editTheDescription(*editor);
    renameTheTag(*editor);

    editor->setFileChooser([&](wxWindow*, const FileQuestion&) { return (folder / "map.csv").string(); });
    pressButton(*editor, "Export map to text file");
    EXPECT_TRUE(
        waitUntil([&] { return readFile(folder / "map.csv").value_or("").find("TANK_LEVEL") != std::string::npos; }));

    const MessageBoxKey yes(*editor, WXK_RETURN);
    pressButton(*editor, "Exit without saving");
    EXPECT_TRUE(waitUntilGone(editor));
    EXPECT_EQ(yes.message(), "Save changes ?");
    EXPECT_EQ(files.definition(), "COIL,00000,NONE,INT16,TANK_LEVEL,edited,1,UNLOCKED,OK\n");
}
