// The real program from its start to its end: what is in the file afterwards.

#include "files/ReadFile.h"
#include "tests/core/OpenElsewhereWindows.h"
#include "tests/core/TempFolder.h"
#include "tests/e2e/windows/ProgramWindows.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace
{

constexpr const char* database = R"({
  "database_groups": [ { "mask": "1", "flag": "MEA", "type": "flag", "desc": "Measured values" } ],
  "structure": [ { "lable": "Plant", "dbprefix": "" } ],
  "database": [
    { "Name": "PUMP_RUN", "Description": "Pump runs", "Type": "Integer", "Size": 1, "Elements": 2, "Groups": 0 },
    { "Name": "PUMP_SPEED", "Description": "Speed", "Type": "Numeric", "Size": 4, "Elements": 1, "Groups": 0 }
  ]
})";
constexpr const char* twoObjects = "HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                   "HOLDING,00011,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n";
constexpr const char* secondObject = "HOLDING,00011,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\r\n";

class EndToEnd : public testing::Test
{
protected:
    EndToEnd() { SuiteKey::install(L"C:\\Suite\\"); }

    /// Opens a map beside its database, deletes its first object, leaves with the exit button and answers Yes.
    void deleteFirstAndSave(const fs::path& map) const
    {
        const Program program({L"-d", folder.write("plant.json", database).wstring(), L"-m", map.wstring()});
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
    const SuiteKey key;
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
    const Program program({L"-d", folder.write("plant.json", database).wstring(), L"-m", map.wstring()});
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
    ASSERT_TRUE(::SetFileAttributesW(map.c_str(), FILE_ATTRIBUTE_READONLY));
    deleteFirstAndSave(map);
    EXPECT_EQ(readFile(map), twoObjects);
    ::SetFileAttributesW(map.c_str(), FILE_ATTRIBUTE_NORMAL); // or the folder could not be removed
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
