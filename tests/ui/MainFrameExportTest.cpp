// The export of the map into a file that the user names.

#include "files/ReadFile.h"
#include "tests/ui/ChosenFile.h"
#include "tests/ui/EditorWindow.h"
#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/filedlg.h>
#include <wx/grid.h>
#include <wx/stdpaths.h>

#include <algorithm>

namespace
{

constexpr std::string_view definition = "COIL,00007,NONE,INT16,TANK_HIGH,Level high,1,UNLOCKED,OK\n"
                                        "HOLDING,00100,WORDS,FLOAT,PUMP_SPEED_SP.1,Speed wanted,2,UNLOCKED,OK\n";

constexpr const char* exportTooltip = "Export map to text file";

constexpr std::string_view csvHeader = "SECTION,ADDRESS,TYPE,REG_COUNT,BYTE_ORDER,TAGNAME,DESCRIPTION";

std::string contentOf(const std::filesystem::path& path)
{
    std::string text = readFile(path).value_or("no file");
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
