#include "files/OldBytes.h"
#include "files/ReadFile.h"
#include "tests/core/TempFolder.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

TEST(OldBytes, AreKeptUnderTheNameWithATilde)
{
    const TempFolder folder;
    const fs::path file = folder.write(std::u8string(u8"größe 大 .csv"), "old\r\n");
    EXPECT_TRUE(keepOldBytes(file));
    EXPECT_EQ(readFile(folder / std::u8string(u8"größe 大 .csv~")), "old\r\n");
    EXPECT_EQ(readFile(file), "old\r\n");
}

TEST(OldBytes, TakeThePlaceOfOlderOnes)
{
    const TempFolder folder;
    folder.write("map.csv~", "oldest");
    EXPECT_TRUE(keepOldBytes(folder.write("map.csv", "old")));
    EXPECT_EQ(readFile(folder / "map.csv~"), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 2);
}

TEST(OldBytes, OfAMissingFileOrAFolderAreNone)
{
    const TempFolder folder;
    EXPECT_FALSE(keepOldBytes(folder / "missing"));
    EXPECT_FALSE(keepOldBytes(folder.path()));
}
