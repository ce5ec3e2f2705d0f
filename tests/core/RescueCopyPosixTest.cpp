// Where names are bytes and files have modes.

#include "files/RescueCopy.h"
#include "tests/core/TempFolder.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

TEST(RescueCopy, OfWorkWithAVeryLongNameIsNotCutInsideACharacter)
{
    const TempFolder folder;
    std::string name = "x"; // so that no character ends where the name is cut
    for (int letter = 0; letter < 125; ++letter)
        name += "ä";
    RescueCopy copy(folder / "rescue");
    ASSERT_TRUE(copy.write(name + ".csv", "the map"));
    const std::string written = copy.file().filename().string();
    EXPECT_TRUE(written.starts_with(name.substr(0, 159) + "-")) << written;
    EXPECT_TRUE(written.ends_with(".csv")) << written;
}

TEST(RescueCopy, AndItsFolderAreTheUsersAlone)
{
    const TempFolder folder;
    RescueCopy copy(folder / "rescue");
    ASSERT_TRUE(copy.write("north.csv", "the map"));
    EXPECT_EQ(fs::status(copy.file()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(fs::status(folder / "rescue").permissions(), fs::perms::owner_all);
}
