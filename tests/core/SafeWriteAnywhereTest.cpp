// What saving does on every system.

#include "files/ReadFile.h"
#include "files/SafeWrite.h"
#include "tests/core/CleanFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace fs = std::filesystem;

namespace
{

class SafeWriteAnywhere : public testing::Test
{
protected:
    const CleanFolder folder;
};

class WorkingDirectory
{
public:
    explicit WorkingDirectory(const fs::path& folder) : old(fs::current_path()) { fs::current_path(folder); }
    ~WorkingDirectory() { fs::current_path(old); }
    WorkingDirectory(const WorkingDirectory&) = delete;
    WorkingDirectory& operator=(const WorkingDirectory&) = delete;

private:
    fs::path old;
};

} // namespace

TEST_F(SafeWriteAnywhere, NewFileGetsTheBytesAsTheyAre)
{
    const std::string bytes("a\r\nb\0c\n", 7);
    EXPECT_TRUE(writeFileSafely(folder / "map.csv", bytes));
    EXPECT_EQ(readFile(folder / "map.csv"), bytes);
}

TEST_F(SafeWriteAnywhere, OldContentsAreReplacedWhole)
{
    const fs::path path = folder.write("map.csv", "a much longer text than the new one");
    EXPECT_TRUE(writeFileSafely(path, "short"));
    EXPECT_EQ(readFile(path), "short");
    EXPECT_TRUE(writeFileSafely(path, ""));
    EXPECT_EQ(readFile(path), "");
}

TEST_F(SafeWriteAnywhere, LargeContentsArriveWhole)
{
    std::string bytes;
    for (int line = 0; line < 300000; ++line)
        bytes += std::to_string(line) + '\n';
    EXPECT_TRUE(writeFileSafely(folder / "map.csv", bytes));
    EXPECT_TRUE(readFile(folder / "map.csv") == bytes);
}

TEST_F(SafeWriteAnywhere, NameWithoutFolderIsTakenFromTheWorkingDirectory)
{
    const WorkingDirectory inside(folder.path());
    EXPECT_TRUE(writeFileSafely("map.csv", "one"));
    EXPECT_TRUE(writeFileSafely("map.csv", "two"));
    EXPECT_EQ(readFile(folder / "map.csv"), "two");
}

TEST_F(SafeWriteAnywhere, NamesMayHoldAnyCharacter)
{
    const fs::path inner = folder / std::u8string(u8"Anlage Süd 大");
    fs::create_directory(inner);
    const fs::path path = inner / std::u8string(u8"größe .csv");
    EXPECT_TRUE(writeFileSafely(path, "one"));
    EXPECT_TRUE(writeFileSafely(path, "two"));
    EXPECT_EQ(readFile(path), "two");
}

TEST_F(SafeWriteAnywhere, MissingFolderIsRefused)
{
    EXPECT_FALSE(writeFileSafely(folder / "missing" / "map.csv", "new"));
    EXPECT_FALSE(fs::exists(folder / "missing"));
}

TEST_F(SafeWriteAnywhere, EmptyPathIsRefused)
{
    const WorkingDirectory inside(folder.path());
    EXPECT_FALSE(writeFileSafely("", "new"));
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(SafeWriteAnywhere, FolderIsRefusedAndStays)
{
    fs::create_directory(folder / "map.csv");
    EXPECT_FALSE(writeFileSafely(folder / "map.csv", "new"));
    EXPECT_FALSE(writeFileSafely(folder / "map.csv" / "", "new"));
    EXPECT_TRUE(fs::is_directory(folder / "map.csv"));
}
