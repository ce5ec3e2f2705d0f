// The real program from its start to its end: what is in the file afterwards.

#include "files/ReadFile.h"
#include "tests/core/OpenElsewhereWindows.h"
#include "tests/core/TempFolder.h"
#include "tests/core/WithAttributesWindows.h"
#include "tests/e2e/PumpMap.h"
#include "tests/e2e/windows/ProgramWindows.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace
{

class EndToEnd : public testing::Test
{
protected:
    /// Opens a map beside its database, deletes its first object, leaves with the exit button and answers Yes.
    void deleteFirstAndSave(const fs::path& map) const
    {
        const Program program({L"-d", folder.write("plant.json", pumpDatabase).wstring(), L"-m", map.wstring()});
        const HWND window = program.waitForWindow(L"Modbus Map Editor");
        ASSERT_NE(window, nullptr);
        program.deleteFirstRow(window);
        Program::pressExit(window);
        const HWND question = program.waitForWindow(L"Confirmation");
        ASSERT_NE(question, nullptr);
        EXPECT_EQ(Program::messageOf(question), L"Save changes ?");
        Program::answer(question, L"&Yes");
        EXPECT_EQ(program.waitForExit(), 0U);
    }

    const TempFolder folder;

private:
    const SuiteKey key{L"C:\\Suite\\"};
};

} // namespace

TEST_F(EndToEnd, WithoutTheSuitesKeyOnlyTheAlertIsShown)
{
    SuiteKey::remove();
    const Program program({});
    const HWND alert = program.waitForWindow(L"Alert - Program cannot continue");
    EXPECT_EQ(Program::messageOf(alert), L"Cannot locate registry entries required by this program"
                                         L"This program cannot continue and will now terminate");
    Program::answer(alert, L"OK");
    EXPECT_EQ(program.waitForExit(), 0U);
}

TEST_F(EndToEnd, ExitButtonSavesWithTheLineEndsOfTheSystem)
{
    const fs::path map = folder.write("map.csv", twoObjects);
    deleteFirstAndSave(map);
    EXPECT_EQ(readFile(map), secondObject);
}

TEST_F(EndToEnd, UnchangedMapIsLeftWithoutAQuestionAndStaysAsItIs)
{
    const fs::path map = folder.write("map.csv", twoObjects);
    const Program program({L"-d", folder.write("plant.json", pumpDatabase).wstring(), L"-m", map.wstring()});
    Program::pressExit(program.waitForWindow(L"Modbus Map Editor"));
    EXPECT_EQ(program.waitForExit(), 0U);
    EXPECT_EQ(readFile(map), twoObjects);
}

TEST_F(EndToEnd, PathMayHoldBlanksAndLettersOfAnyAlphabet)
{
    fs::create_directory(folder / std::u8string(u8"Anlage Süd 大"));
    const fs::path map = folder.write(std::u8string(u8"Anlage Süd 大/größe 1.csv"), twoObjects);
    deleteFirstAndSave(map);
    EXPECT_EQ(readFile(map), secondObject);
}

TEST_F(EndToEnd, PathMayBeLongerThan260Characters)
{
    fs::path inner;
    for (int level = 0; level < 6; ++level)
        inner /= std::string(50, static_cast<char>('a' + level));
    fs::create_directories(folder / inner);
    const fs::path map = folder.write(inner / "map.csv", twoObjects);
    ASSERT_GT(map.native().size(), 260U);
    deleteFirstAndSave(map);
    EXPECT_EQ(readFile(map), secondObject);
}

TEST_F(EndToEnd, WriteProtectedFileStaysAsItIs)
{
    const fs::path map = folder.write("map.csv", twoObjects);
    const WithAttributes writeProtected(map, FILE_ATTRIBUTE_READONLY);
    deleteFirstAndSave(map);
    EXPECT_EQ(readFile(map), twoObjects);
}

TEST_F(EndToEnd, FileThatAnotherProgramReadsIsSaved)
{
    const fs::path map = folder.write("map.csv", twoObjects);
    {
        const OpenElsewhere reader(map, FILE_SHARE_READ | FILE_SHARE_WRITE);
        deleteFirstAndSave(map);
    }
    EXPECT_EQ(readFile(map), secondObject);
}

TEST_F(EndToEnd, FileThatAnotherProgramLocksStaysAsItIs)
{
    const fs::path map = folder.write("map.csv", twoObjects);
    {
        const OpenElsewhere reader(map, FILE_SHARE_READ);
        deleteFirstAndSave(map);
    }
    EXPECT_EQ(readFile(map), twoObjects);
}
