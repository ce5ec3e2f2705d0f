#include "ui/RescueKeeper.h"

#include "files/ReadFile.h"
#include "map/DefinitionFile.h"
#include "tests/core/TempFolder.h"
#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>

namespace
{

/// Milliseconds: a minute is long for a test.
constexpr int quickly = 5;

/// Locks a register: a change that any command may make.
void change(Document& document, int address)
{
    document.map.placeObject(RegisterSpace::Coil, address, freeSlot(address), 1);
}

/// Waits until the copy is the file of the map as it is now.
[[nodiscard]] bool comesToHold(RescueKeeper& keeper, const RegisterMap& map)
{
    return waitUntil([&] { return readFile(keeper.file()) == definitionText(map); });
}

/// Waits until a keeper that is there has had its turn a few times.
[[nodiscard]] bool waitForSomeIntervals()
{
    // Ticks of one timer pass for ticks of another of the same length.
    int ticks = 0;
    wxTimer beside;
    beside.Bind(wxEVT_TIMER, [&ticks](wxTimerEvent&) { ++ticks; });
    beside.Start(quickly);
    return waitUntil([&] { return ticks > 3; });
}

} // namespace

TEST(RescueKeeper, RefreshesItsCopyAfterEachIntervalWithChanges)
{
    const TempFolder folder;
    Document document("", folder / "north.csv", 0);
    RescueKeeper keeper(document, folder / "rescue", quickly);
    change(document, 3);
    EXPECT_TRUE(comesToHold(keeper, document.map));
    change(document, 4);
    EXPECT_TRUE(comesToHold(keeper, document.map));
}

TEST(RescueKeeper, WritesItsCopyAgainWhenOtherRunsHavePushedItOut)
{
    const TempFolder folder;
    Document document("", folder / "north.csv", 0);
    RescueKeeper keeper(document, folder / "rescue", quickly);
    change(document, 3);
    ASSERT_TRUE(comesToHold(keeper, document.map));
    std::filesystem::remove(keeper.file());
    EXPECT_TRUE(comesToHold(keeper, document.map));
}

TEST(RescueKeeper, TriesAgainWhenACopyCouldNotBeWritten)
{
    const TempFolder folder;
    folder.write("rescue", "a file where the folder should be");
    Document document("", folder / "north.csv", 0);
    RescueKeeper keeper(document, folder / "rescue" / "copies", quickly);
    change(document, 3);
    ASSERT_TRUE(waitForSomeIntervals());
    ASSERT_EQ(keeper.file(), "");

    std::filesystem::remove(folder / "rescue");
    EXPECT_TRUE(comesToHold(keeper, document.map));
}

TEST(RescueKeeper, WritesNothingWhileThereAreNoChanges)
{
    const TempFolder folder;
    const Document document("", folder / "north.csv", 0);
    RescueKeeper keeper(document, folder / "rescue", quickly);
    ASSERT_TRUE(waitForSomeIntervals());
    EXPECT_EQ(keeper.file(), "");
    EXPECT_FALSE(std::filesystem::exists(folder / "rescue"));
}

TEST(RescueKeeper, LeavesTheLastCopyWhenTheProgramEndsWithoutFinishing)
{
    const TempFolder folder;
    Document document("", folder / "north.csv", 0);
    std::filesystem::path copy;
    {
        RescueKeeper keeper(document, folder / "rescue", quickly);
        change(document, 3);
        ASSERT_TRUE(waitUntil([&] { return !keeper.file().empty(); }));
        copy = keeper.file();
    }
    EXPECT_EQ(readFile(copy), definitionText(document.map));
}

TEST(RescueKeeper, FinishingKeepsChangesThatNoIntervalHasSeen)
{
    const TempFolder folder;
    Document document("", folder / "north.csv", 0);
    constexpr int hour = 3'600'000;
    RescueKeeper keeper(document, folder / "rescue", hour);
    change(document, 3);
    keeper.finish();
    EXPECT_EQ(readFile(keeper.file()), definitionText(document.map));
}

TEST(RescueKeeper, RemovesTheCopyOfAMinuteWhenItsChangesAreSaved)
{
    const TempFolder folder;
    Document document("", folder / "north.csv", 0);
    RescueKeeper keeper(document, folder / "rescue", quickly);
    change(document, 3);
    ASSERT_TRUE(waitUntil([&] { return !keeper.file().empty(); }));
    const std::filesystem::path copy = keeper.file();
    ASSERT_TRUE(document.saveDefinition());
    keeper.finish();
    EXPECT_FALSE(std::filesystem::exists(copy));
}
