#include "map/MapView.h"

#include "tests/core/MapBuilder.h"

#include <gtest/gtest.h>

TEST(MapView, LabelsNameTheModes)
{
    EXPECT_EQ(viewModeLabel(ViewMode::All), "ALL");
    EXPECT_EQ(viewModeLabel(ViewMode::Expanded), "EXPANDED");
    EXPECT_EQ(viewModeLabel(ViewMode::Compressed), "COMPRESSED");
    EXPECT_EQ(viewModeLabel(static_cast<ViewMode>(3)), "NONE");
    EXPECT_EQ(viewModeLabel(static_cast<ViewMode>(-1)), "NONE");
}

TEST(MapView, ModesAreNumberedAllExpandedCompressed)
{
    EXPECT_EQ(static_cast<int>(ViewMode::All), 0);
    EXPECT_EQ(static_cast<int>(ViewMode::Expanded), 1);
    EXPECT_EQ(static_cast<int>(ViewMode::Compressed), 2);
}

TEST(MapView, ToggleGoesFromCompressedOverExpandedToAllAndRound)
{
    EXPECT_EQ(nextViewMode(ViewMode::Compressed), ViewMode::Expanded);
    EXPECT_EQ(nextViewMode(ViewMode::Expanded), ViewMode::All);
    EXPECT_EQ(nextViewMode(ViewMode::All), ViewMode::Compressed);
}

TEST(MapView, AllShowsEveryAddressUsedOrNot)
{
    const auto slots = drawnSpace(10, "AAAA");
    const std::vector<int> rows = shownAddresses(*slots, ViewMode::All);
    ASSERT_EQ(rows.size(), 65536U);
    for (int address = 0; address <= lastAddress; ++address)
        ASSERT_EQ(rows[static_cast<std::size_t>(address)], address);
}

TEST(MapView, ExpandedShowsARowForEachRegister)
{
    const auto slots = drawnSpace(10, "AAAA.b.#CC");
    EXPECT_EQ(shownAddresses(*slots, ViewMode::Expanded), (std::vector{10, 11, 12, 13, 15, 18, 19}));
}

TEST(MapView, CompressedShowsARowForEachObject)
{
    const auto slots = drawnSpace(10, "AAAA.b.#CC");
    EXPECT_EQ(shownAddresses(*slots, ViewMode::Compressed), (std::vector{10, 15, 18}));
}

TEST(MapView, EndsOfTheSpaceAreShown)
{
    auto slots = drawnSpace(0, "AA");
    draw(*slots, 65534, "BC");
    EXPECT_EQ(shownAddresses(*slots, ViewMode::Expanded), (std::vector{0, 1, 65534, 65535}));
    EXPECT_EQ(shownAddresses(*slots, ViewMode::Compressed), (std::vector{0, 65534, 65535}));
}

TEST(MapView, RegistersWithoutAHeadAreShownExpandedOnly)
{
    auto slots = drawnSpace(10, "AAAA");
    clearSlots(*slots, 10, 1);
    EXPECT_EQ(shownAddresses(*slots, ViewMode::Expanded), (std::vector{11, 12, 13}));
    EXPECT_TRUE(shownAddresses(*slots, ViewMode::Compressed).empty());
}

TEST(MapView, EmptySpaceHasNoRowsButInAll)
{
    const auto slots = drawnSpace(0, "#");
    EXPECT_TRUE(shownAddresses(*slots, ViewMode::Expanded).empty());
    EXPECT_TRUE(shownAddresses(*slots, ViewMode::Compressed).empty());
    EXPECT_EQ(shownAddresses(*slots, ViewMode::All).size(), 65536U);
}

TEST(MapView, FullSpaceIsShownWhole)
{
    const auto slots = drawnSpace(0, "AAAA");
    for (int address = 0; address <= lastAddress; ++address)
        place(*slots, address, registerOf("X", 1));
    EXPECT_EQ(shownAddresses(*slots, ViewMode::Compressed).size(), 65536U);
    EXPECT_EQ(shownAddresses(*slots, ViewMode::Expanded).size(), 65536U);
}

TEST(MapView, UnknownModeShowsNothing)
{
    const auto slots = drawnSpace(0, "AAAA");
    EXPECT_TRUE(shownAddresses(*slots, static_cast<ViewMode>(3)).empty());
    EXPECT_TRUE(shownAddresses(*slots, static_cast<ViewMode>(-1)).empty());
}

TEST(MapView, StatusTellsTheNumberOfErrors)
{
    EXPECT_EQ(statusText(0), "  No errors");
    EXPECT_EQ(statusText(1), "  WARNING : 1 error(s) found in register map");
    EXPECT_EQ(statusText(786432), "  WARNING : 786432 error(s) found in register map");
}
