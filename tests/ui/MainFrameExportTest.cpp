// Commands that ask for a file or show a box about the program: export, help, about.

#include "tests/ui/EditorWindow.h"
#include "tests/ui/UiTest.h"
#include "ui/ToolkitText.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/filedlg.h>
#include <wx/grid.h>
#include <wx/stdpaths.h>

#include <algorithm>
#include <fstream>
#include <iterator>

namespace
{

constexpr std::string_view definition = "COIL,00007,NONE,INT16,TANK_HIGH,Level high,1,UNLOCKED,OK\n"
                                        "HOLDING,00100,WORDS,FLOAT,PUMP_SPEED_SP.1,Speed wanted,2,UNLOCKED,OK\n";

constexpr const char* exportTooltip = "Export map to text file";
constexpr const char* helpTooltip = "Help";

constexpr std::string_view csvHeader = "SECTION,ADDRESS,TYPE,REG_COUNT,BYTE_ORDER,TAGNAME,DESCRIPTION";

/// Answers the questions for a file and keeps the last one.
class ChosenFile
{
public:
    ChosenFile(EditorWindow& window, const std::filesystem::path& path) : editor(window), answer(path.string())
    {
        editor.setFileChooser(
            [this](wxWindow* parent, const FileQuestion& question)
            {
                ++asked;
                asker = parent;
                last = question;
                return answer;
            });
    }

    ~ChosenFile() { editor.setFileChooser(chooseFileWithDialog); }

    ChosenFile(const ChosenFile&) = delete;
    ChosenFile& operator=(const ChosenFile&) = delete;

    int count() const { return asked; }
    const wxWindow* parent() const { return asker; }
    const FileQuestion& question() const { return last; }

private:
    EditorWindow& editor;
    wxString answer;
    int asked = 0;
    const wxWindow* asker = nullptr;
    FileQuestion last;
};

std::string contentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(file), {}};
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    return text;
}

/// Exports to a path by the button, and waits until that is over.
void exportTo(EditorWindow& editor, const std::filesystem::path& path)
{
    const ChosenFile file(editor, path);
    clickOn(*editor.button(exportTooltip));
    EXPECT_TRUE(waitUntil([&file] { return file.count() == 1; }));
}

constexpr std::string_view expectedCsv = "SECTION,ADDRESS,TYPE,REG_COUNT,BYTE_ORDER,TAGNAME,DESCRIPTION\n"
                                         "COIL,00007,INT16,1,---,TANK_HIGH,Level high\n";

} // namespace

TEST(MainFrameExport, AsksForTheFileInTheDocumentsFolder)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    const ChosenFile file(editor, "");
    clickOn(*editor.button(exportTooltip));
    ASSERT_TRUE(waitUntil([&] { return file.count() == 1; }));
    EXPECT_EQ(file.parent(), &editor);
    EXPECT_EQ(file.question().message, "Export map as CSV or Text file");
    EXPECT_EQ(file.question().folder, wxStandardPaths::Get().GetDocumentsDir());
    EXPECT_EQ(file.question().name, "data.csv");
    EXPECT_EQ(file.question().wildcard, "CSV files (*.csv)|*.csv|Text files (*.txt)|*.txt");
    EXPECT_EQ(file.question().style, wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
}

TEST(MainFrameExport, NameEndingInCsvInAnyLetterCaseGetsTheTable)
{
    const TempFolder folder;
    const PlantFiles files("COIL,00007,NONE,INT16,TANK_HIGH,Level high,1,UNLOCKED,OK\n");
    EditorWindow& editor = *openEditor(files.startup());
    for (const char* const name : {"lower.csv", "UPPER.CSV", "mixed.Csv"})
    {
        exportTo(editor, folder / name);
        EXPECT_EQ(contentOf(folder / name), expectedCsv) << name;
    }
}

TEST(MainFrameExport, EveryOtherNameGetsTheReport)
{
    const TempFolder folder;
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    for (const char* const name : {"map.txt", "map", "csv", "map.csv.bak"})
    {
        exportTo(editor, folder / name);
        const std::string report = contentOf(folder / name);
        EXPECT_EQ(report.find(csvHeader), std::string::npos) << name;
        EXPECT_NE(report.find("\nCOIL REGISTERS\n"), std::string::npos) << name;
        EXPECT_NE(report.find("\nHOLDING REGISTERS\n"), std::string::npos) << name;
        EXPECT_NE(report.find("\n00007    INT16   1          ---    TANK_HIGH             Level high\n"),
                  std::string::npos)
            << name << '\n'
            << report;
    }
}

TEST(MainFrameExport, ExistingFileIsReplaced)
{
    const TempFolder folder;
    const PlantFiles files("COIL,00007,NONE,INT16,TANK_HIGH,Level high,1,UNLOCKED,OK\n");
    EditorWindow& editor = *openEditor(files.startup());
    const auto path = folder.write("old.csv", std::string(5000, 'x') + "\n");
    exportTo(editor, path);
    EXPECT_EQ(contentOf(path), expectedCsv);
}

TEST(MainFrameExport, ChangesNeitherTheMapNorTheView)
{
    const TempFolder folder;
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    editor.clickMapRow(0);
    exportTo(editor, folder / "map.csv");
    EXPECT_FALSE(editor.registerMap().isModified());
    EXPECT_EQ(editor.selectedMapRows(), std::vector<int>{0});
    EXPECT_EQ(files.definition(), definition);
}

TEST(MainFrameExport, CancellingWritesNothing)
{
    const TempFolder folder;
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    exportTo(editor, "");
    editor.nextView();
    std::filesystem::current_path(before);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST(MainFrameExport, PathThatTakesNoFileIsPassedOverInSilence)
{
    const TempFolder folder;
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    exportTo(editor, folder / "no such folder" / "map.csv");
    exportTo(editor, folder.path());
    editor.nextView();
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
    EXPECT_FALSE(editor.registerMap().isModified());
}

TEST(MainFrameExport, HelpAsksForADocumentOfTheSuite)
{
    const PlantFiles files("");
    EditorWindow& editor = *openEditor(files.startup());
    const ChosenFile file(editor, "");
    clickOn(*editor.button(helpTooltip));
    ASSERT_TRUE(waitUntil([&] { return file.count() == 1; }));
    EXPECT_EQ(file.parent(), &editor);
    EXPECT_EQ(file.question().message, "Select a document");
#ifdef __WINDOWS__
    EXPECT_EQ(file.question().folder, "\\suite\\varnokconfigure\\DOCUMENTATION");
#else
    EXPECT_EQ(file.question().folder, "/suite/varnokconfigure/DOCUMENTATION");
#endif
    EXPECT_EQ(file.question().name, "*.pdf");
    EXPECT_EQ(file.question().wildcard, "*.pdf");
    EXPECT_EQ(file.question().style, wxFD_OPEN | wxFD_FILE_MUST_EXIST);
}

TEST(MainFrameExport, HelpWithoutAChosenDocumentGoesBackToTheEditor)
{
    const PlantFiles files(definition);
    EditorWindow& editor = *openEditor(files.startup());
    const ChosenFile file(editor, "");
    clickOn(*editor.button(helpTooltip));
    EXPECT_TRUE(waitUntil([&] { return file.count() == 1; }));
    // A document that cannot be opened would bring a box of the toolkit's, which fails the test.
    editor.nextView();
    EXPECT_EQ(file.count(), 1);
    EXPECT_TRUE(editor.IsActive());
    EXPECT_FALSE(editor.registerMap().isModified());
}

TEST(MainFrameExport, AboutIsABoxThatIsClosedAgain)
{
    const PlantFiles files(definition);
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

TEST(MainFrameExport, AboutNamesProgramVersionPurposeAndAddress)
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
