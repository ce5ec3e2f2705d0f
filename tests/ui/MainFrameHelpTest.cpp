// What tells about the program: the documents that the help button offers, and the about box.

#include "tests/ui/ChosenFile.h"
#include "tests/ui/EditorWindow.h"
#include "tests/ui/UiTest.h"
#include "ui/ToolkitText.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/filedlg.h>
#include <wx/filename.h>

#include <algorithm>

TEST(MainFrameHelp, AsksForADocumentOfTheSuite)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    const ChosenFile file(editor, "");
    clickOn(*editor.button("Help"));
    ASSERT_TRUE(waitUntil([&] { return file.count() == 1; }));
    EXPECT_EQ(file.parent(), &editor);
    EXPECT_EQ(file.question().message, "Select a document");
    const wxString separator = wxFileName::GetPathSeparator();
    EXPECT_EQ(file.question().folder, "/suite/varnokconfigure" + separator + "DOCUMENTATION");
    EXPECT_EQ(file.question().name, "*.pdf");
    EXPECT_EQ(file.question().wildcard, "*.pdf");
    EXPECT_EQ(file.question().style, wxFD_OPEN | wxFD_FILE_MUST_EXIST);
}

TEST(MainFrameHelp, WithoutAChosenDocumentGoesBackToTheEditor)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    const ChosenFile file(editor, "");
    clickOn(*editor.button("Help"));
    EXPECT_TRUE(waitUntil([&] { return file.count() == 1; }));
    // A document that cannot be opened would bring a box of the toolkit's, which fails the test.
    editor.nextView();
    EXPECT_EQ(file.count(), 1);
    EXPECT_TRUE(editor.IsActive());
    EXPECT_FALSE(editor.registerMap().isModified());
}

TEST(MainFrameHelp, AboutIsABoxThatIsClosedAgain)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    for (const int key : {WXK_ESCAPE, WXK_RETURN})
    {
        const DialogScript script(
            [key](wxDialog& dialog)
            {
                EXPECT_EQ(dialog.GetTitle(), "About Tolvane : Modbus Map Editor");
                EXPECT_TRUE(dialog.IsModal());
                pressKey(key);
            });
        clickOn(*editor.button("About"));
        EXPECT_TRUE(waitUntil([&script] { return script.hasEnded(); }));
        EXPECT_TRUE(waitUntil([&editor] { return editor.IsActive(); }));
    }
    editor.nextView();
    EXPECT_FALSE(editor.registerMap().isModified());
}

TEST(MainFrameHelp, AboutNamesProgramVersionPurposeAndAddress)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    std::vector<std::string> texts;
    const DialogScript script(
        [&texts](wxDialog& dialog)
        {
            for (const wxWindow* const child : dialog.GetChildren())
                texts.push_back(modelText(child->GetLabel()));
            pressKey(WXK_ESCAPE);
        });
    clickOn(*editor.button("About"));
    EXPECT_TRUE(waitUntil([&script] { return script.hasEnded(); }));
    const auto names = [&texts](const std::string& text) { return std::count(texts.begin(), texts.end(), text); };
    EXPECT_EQ(names("Tolvane : Modbus Map Editor 1.0.0"), 1);
    EXPECT_EQ(names("Modbus map editor for Varnok and Dravel products"), 1);
    EXPECT_EQ(names("https://www.belthorne.example"), 1);
}
