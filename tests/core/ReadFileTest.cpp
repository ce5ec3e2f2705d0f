#include "files/ReadFile.h"

#include "tests/core/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

using namespace std::string_literals;

TEST(ReadFile, GivesTheBytesAsTheyAre)
{
    const TempFolder folder;
    const std::string bytes = "a\r\nb\0\xFF\x1A end"s;
    EXPECT_EQ(readFile(folder.write("file", bytes)), bytes);
}

TEST(ReadFile, EmptyFileGivesTheEmptyText)
{
    const TempFolder folder;
    EXPECT_EQ(readFile(folder.write("empty", "")), "");
}

TEST(ReadFile, LargeFileIsWhole)
{
    const TempFolder folder;
    std::string bytes;
    for (int i = 0; i < 300000; ++i)
        bytes += std::to_string(i);
    EXPECT_EQ(readFile(folder.write("large", bytes)), bytes);
}

TEST(ReadFile, NameMayHoldAnyCharacter)
{
    const TempFolder folder;
    EXPECT_EQ(readFile(folder.write(std::u8string(u8"größe 大 .json"), "x")), "x");
}

TEST(ReadFile, MissingFileAndFolderGiveNothing)
{
    const TempFolder folder;
    EXPECT_EQ(readFile(folder / "missing"), std::nullopt);
    EXPECT_EQ(readFile(folder.path()), std::nullopt);
    EXPECT_EQ(readFile(""), std::nullopt);
}

TEST(ReadFile, PathThroughARegularFileGivesNothing)
{
    const TempFolder folder;
    EXPECT_EQ(readFile(folder.write("file", "x") / "below"), std::nullopt);
}
