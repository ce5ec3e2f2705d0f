#include "files/ReadFile.h"
#include "files/SafeWrite.h"
#include "files/windows/Exchange.h"
#include "files/windows/FileHandle.h"
#include "tests/core/OpenElsewhereWindows.h"
#include "tests/core/TempFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace fs = std::filesystem;

namespace
{

/// Works in a folder of its own, in which nothing but the files of the test may be left.
class SafeWrite : public testing::Test
{
protected:
    ~SafeWrite() override
    {
        for (const auto& entry : fs::recursive_directory_iterator(folder.path()))
        {
            const std::u8string name = entry.path().filename().u8string();
            EXPECT_FALSE(name.starts_with(u8".saving")) << entry.path();
            EXPECT_EQ(name.find(u8".old-"), std::u8string::npos) << entry.path();
        }
    }

    const TempFolder folder;
};

DWORD attributesOf(const fs::path& path)
{
    return ::GetFileAttributesW(path.c_str());
}

/// Stops as the system does that has put the old file aside and then cannot give its name to the fresh one.
BOOL WINAPI stopHalfWay(LPCWSTR target, LPCWSTR, LPCWSTR aside, DWORD, LPVOID, LPVOID)
{
    EXPECT_TRUE(::MoveFileW(target, aside));
    ::SetLastError(ERROR_UNABLE_TO_MOVE_REPLACEMENT_2);
    return FALSE;
}

/// The same, and what was put aside is gone too.
BOOL WINAPI loseTheOldFile(LPCWSTR target, LPCWSTR, LPCWSTR, DWORD, LPVOID, LPVOID)
{
    EXPECT_TRUE(::DeleteFileW(target));
    ::SetLastError(ERROR_UNABLE_TO_MOVE_REPLACEMENT_2);
    return FALSE;
}

} // namespace

TEST_F(SafeWrite, NewFileGetsTheBytesAsTheyAre)
{
    const std::string bytes("a\r\nb\0c\n", 7);
    EXPECT_TRUE(writeFileSafely(folder / "map.csv", bytes));
    EXPECT_EQ(readFile(folder / "map.csv"), bytes);
}

TEST_F(SafeWrite, OldContentsAreReplacedWhole)
{
    const fs::path path = folder.write("map.csv", "a much longer text than the new one");
    EXPECT_TRUE(writeFileSafely(path, "short"));
    EXPECT_EQ(readFile(path), "short");
    EXPECT_TRUE(writeFileSafely(path, ""));
    EXPECT_EQ(readFile(path), "");
}

TEST_F(SafeWrite, NamesMayHoldAnyCharacter)
{
    const fs::path inner = folder / std::u8string(u8"Anlage Süd 大");
    fs::create_directory(inner);
    const fs::path path = inner / std::u8string(u8"größe .csv");
    EXPECT_TRUE(writeFileSafely(path, "one"));
    EXPECT_TRUE(writeFileSafely(path, "two"));
    EXPECT_EQ(readFile(path), "two");
}

TEST_F(SafeWrite, HiddenFileStaysHidden)
{
    const fs::path path = folder.write("map.csv", "old");
    ASSERT_TRUE(::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_HIDDEN));
    EXPECT_TRUE(writeFileSafely(path, "new"));
    EXPECT_EQ(readFile(path), "new");
    EXPECT_NE(attributesOf(path) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

TEST_F(SafeWrite, WriteProtectedFileIsRefusedAndStays)
{
    const fs::path path = folder.write("map.csv", "old");
    ASSERT_TRUE(::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_FALSE(writeFileSafely(path, "new"));
    EXPECT_EQ(readFile(path), "old");
    EXPECT_NE(attributesOf(path) & FILE_ATTRIBUTE_READONLY, 0U);
    ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL); // or the folder could not be removed
}

TEST_F(SafeWrite, FileThatAnotherProgramReadsIsWrittenAllTheSame)
{
    const fs::path path = folder.write("map.csv", "old text");
    {
        const OpenElsewhere reader(path, FILE_SHARE_READ | FILE_SHARE_WRITE);
        EXPECT_TRUE(writeFileSafely(path, "new"));
    }
    EXPECT_EQ(readFile(path), "new");
}

TEST_F(SafeWrite, FileThatAnotherProgramLetsNobodyWriteIsRefusedAndStays)
{
    const fs::path path = folder.write("map.csv", "old text");
    {
        const OpenElsewhere reader(path, FILE_SHARE_READ);
        EXPECT_FALSE(writeFileSafely(path, "new"));
    }
    EXPECT_EQ(readFile(path), "old text");
}

TEST_F(SafeWrite, FileWithTwoNamesKeepsBoth)
{
    const fs::path path = folder.write("map.csv", "old text");
    ASSERT_TRUE(::CreateHardLinkW((folder / "same.csv").c_str(), path.c_str(), nullptr));
    EXPECT_TRUE(writeFileSafely(path, "new"));
    EXPECT_EQ(readFile(path), "new");
    EXPECT_EQ(readFile(folder / "same.csv"), "new");
}

TEST_F(SafeWrite, MissingFolderAndEmptyPathAreRefused)
{
    EXPECT_FALSE(writeFileSafely(folder / "missing" / "map.csv", "new"));
    EXPECT_FALSE(fs::exists(folder / "missing"));
    EXPECT_FALSE(writeFileSafely("", "new"));
}

TEST_F(SafeWrite, FolderAndDeviceAreRefused)
{
    fs::create_directory(folder / "map.csv");
    EXPECT_FALSE(writeFileSafely(folder / "map.csv", "new"));
    EXPECT_TRUE(fs::is_directory(folder / "map.csv"));
    EXPECT_FALSE(writeFileSafely("NUL", "new"));
}

TEST_F(SafeWrite, ExchangeThatStopsHalfWayGivesTheOldFileItsNameBack)
{
    const fs::path path = folder.write("map.csv", "old text");
    EXPECT_EQ(exchangeFile(path, true, "new", stopHalfWay), Exchange::Refused);
    EXPECT_EQ(readFile(path), "old text");
}

TEST_F(SafeWrite, ExchangeThatHasLostTheOldFileGivesItsNameToTheFreshOne)
{
    const fs::path path = folder.write("map.csv", "old text");
    EXPECT_EQ(exchangeFile(path, true, "new", loseTheOldFile), Exchange::Done);
    EXPECT_EQ(readFile(path), "new");
}
