#include "files/ReadFile.h"
#include "files/SafeWrite.h"
#include "files/windows/Exchange.h"
#include "files/windows/FileHandle.h"
#include "tests/core/CleanFolder.h"
#include "tests/core/OpenElsewhereWindows.h"
#include "tests/core/WithAttributesWindows.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace
{

class SafeWrite : public testing::Test
{
protected:
    const CleanFolder folder;
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

TEST_F(SafeWrite, HiddenFileStaysHidden)
{
    const fs::path path = folder.write("map.csv", "old");
    const WithAttributes hidden(path, FILE_ATTRIBUTE_HIDDEN);
    EXPECT_TRUE(writeFileSafely(path, "new"));
    EXPECT_EQ(readFile(path), "new");
    EXPECT_NE(attributesOf(path) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

TEST_F(SafeWrite, WriteProtectedFileIsRefusedAndStays)
{
    const fs::path path = folder.write("map.csv", "old");
    const WithAttributes writeProtected(path, FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(writeFileSafely(path, "new"));
    EXPECT_EQ(readFile(path), "old");
    EXPECT_NE(attributesOf(path) & FILE_ATTRIBUTE_READONLY, 0U);
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

TEST_F(SafeWrite, DeviceIsRefused)
{
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
