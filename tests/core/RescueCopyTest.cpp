#include "files/RescueCopy.h"

#include "files/ReadFile.h"
#include "tests/core/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <vector>

namespace fs = std::filesystem;

namespace
{

std::vector<fs::path> filesIn(const fs::path& folder)
{
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        files.push_back(entry.path());
    return files;
}

/// The name of a file with "#" in place of every digit: what stays the same at any time of any day.
std::string shapeOf(const fs::path& file)
{
    std::string name = file.filename().string();
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return std::isdigit(c) != 0; }, '#');
    return name;
}

/// Makes a file that looks so many minutes old.
void writeOld(const TempFolder& folder, const std::string& name, int minutes)
{
    const fs::path file = folder.write(name, "old");
    fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::minutes(minutes));
}

} // namespace

TEST(RescueCopy, LiesUnderTheNameOfTheWorkAndTheTime)
{
    const TempFolder folder;
    RescueCopy copy(folder / "state" / "rescue");
    EXPECT_TRUE(copy.file().empty());
    ASSERT_TRUE(copy.write("/plants/north.csv", "the map"));
    EXPECT_EQ(filesIn(folder / "state" / "rescue"), std::vector{copy.file()});
    EXPECT_EQ(shapeOf(copy.file()), "north-########-######.csv");
    EXPECT_EQ(readFile(copy.file()), "the map");
}

TEST(RescueCopy, OfWorkWithoutANameIsCalledMap)
{
    const TempFolder folder;
    RescueCopy copy(folder / "rescue");
    ASSERT_TRUE(copy.write("", "the map"));
    EXPECT_EQ(shapeOf(copy.file()), "map-########-######");
}

TEST(RescueCopy, OfWorkWithAVeryLongNameHasItsBeginning)
{
    const TempFolder folder;
    RescueCopy copy(folder / "rescue");
    ASSERT_TRUE(copy.write(std::string(200, 'x') + ".csv", "the map"));
    EXPECT_EQ(shapeOf(copy.file()), std::string(160, 'x') + "-########-######.csv");
    EXPECT_EQ(readFile(copy.file()), "the map");

    RescueCopy other(folder / "rescue");
    ASSERT_TRUE(other.write("plant." + std::string(200, 'y'), "another"));
    EXPECT_EQ(shapeOf(other.file()), "plant-########-######." + std::string(31, 'y'));
}

TEST(RescueCopy, OfOneRunIsOneFileThatHoldsTheLastWork)
{
    const TempFolder folder;
    RescueCopy copy(folder / "rescue");
    ASSERT_TRUE(copy.write("north.csv", "first"));
    ASSERT_TRUE(copy.write("renamed.csv", "last"));
    ASSERT_EQ(filesIn(folder / "rescue").size(), 1U);
    EXPECT_EQ(readFile(copy.file()), "last");
}

TEST(RescueCopy, OfAnotherRunInTheSameSecondKeepsItsOwnFile)
{
    const TempFolder folder;
    RescueCopy one(folder / "rescue");
    RescueCopy other(folder / "rescue");
    ASSERT_TRUE(one.write("north.csv", "one"));
    ASSERT_TRUE(other.write("north.csv", "other"));
    EXPECT_NE(one.file(), other.file());
    EXPECT_EQ(readFile(one.file()), "one");
    EXPECT_EQ(readFile(other.file()), "other");
}

TEST(RescueCopy, LeavesTheTenNewest)
{
    const TempFolder folder;
    for (int age = 1; age <= 12; ++age)
        writeOld(folder, "old-" + std::to_string(age) + ".csv", age);
    RescueCopy copy(folder.path());
    ASSERT_TRUE(copy.write("north.csv", "the map"));
    EXPECT_EQ(filesIn(folder.path()).size(), 10U);
    EXPECT_TRUE(fs::exists(folder / "old-9.csv"));
    EXPECT_FALSE(fs::exists(folder / "old-10.csv"));
    EXPECT_TRUE(fs::exists(copy.file()));
}

TEST(RescueCopy, IsRemovedWithoutTouchingThoseOfOtherRuns)
{
    const TempFolder folder;
    writeOld(folder, "old.csv", 1);
    RescueCopy copy(folder.path());
    copy.remove();
    ASSERT_TRUE(copy.write("north.csv", "the map"));
    copy.remove();
    EXPECT_TRUE(copy.file().empty());
    EXPECT_EQ(filesIn(folder.path()), std::vector{folder / "old.csv"});
}

TEST(RescueCopy, WithoutAFolderThatCanBeMadeIsNotWritten)
{
    const TempFolder folder;
    folder.write("file", "");
    EXPECT_FALSE(RescueCopy(folder / "file" / "rescue").write("north.csv", "the map"));
    EXPECT_FALSE(RescueCopy("").write("north.csv", "the map"));
}
