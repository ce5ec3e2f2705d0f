#include "map/Locks.h"

#include "map/Selection.h"
#include "tests/core/MapBuilder.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Locks, WholeObjectIsLockedAndUnlocked)
{
    const auto slots = drawnSpace(10, "AA");
    toggleLocks(*slots, collectSelection(*slots, std::vector{10}));
    EXPECT_TRUE(looksLike(*slots, 10, "aa"));
    toggleLocks(*slots, collectSelection(*slots, std::vector{10}));
    EXPECT_TRUE(looksLike(*slots, 10, "AA"));
}

TEST(Locks, MixedSelectionSwapsItsStates)
{
    const auto slots = drawnSpace(10, "AAbC");
    toggleLocks(*slots, std::vector{10, 11, 12});
    EXPECT_TRUE(looksLike(*slots, 10, "aaBC"));
}

TEST(Locks, SlotsOfOneObjectAreInvertedEachByItself)
{
    const auto slots = drawnSpace(10, "AAA");
    (*slots)[11].locked = true;
    toggleLocks(*slots, std::vector{10, 11, 12});
    EXPECT_EQ(pictureOf(*slots, 10, 3), "aAa");
}

TEST(Locks, FreeSlotCanBeLocked)
{
    const auto slots = drawnSpace(10, "A.");
    toggleLocks(*slots, std::vector{11});
    EXPECT_TRUE(looksLike(*slots, 10, "A#"));
}

TEST(Locks, AddressListedTwiceKeepsItsState)
{
    const auto slots = drawnSpace(10, "Ab");
    toggleLocks(*slots, std::vector{10, 11, 10, 11});
    EXPECT_TRUE(looksLike(*slots, 10, "Ab"));
}

TEST(Locks, AddressesOutsideTheSpaceArePassedOver)
{
    const auto slots = drawnSpace(65'535, "A");
    toggleLocks(*slots,
                std::vector{-1, 65'536, std::numeric_limits<int>::min(), 65'535, std::numeric_limits<int>::max()});
    EXPECT_TRUE(looksLike(*slots, 65'535, "a"));
}
