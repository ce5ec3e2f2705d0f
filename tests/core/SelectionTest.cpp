#include "map/Selection.h"

#include "tests/core/MapBuilder.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

std::vector<int> select(const RegisterSlots& slots, const std::vector<int>& rows)
{
    return collectSelection(slots, rows);
}

} // namespace

TEST(Selection, RowOfAHeadTakesTheWholeObject)
{
    const auto slots = drawnSpace(10, "AAAABCC");
    EXPECT_EQ(select(*slots, {10, 15}), (std::vector{10, 11, 12, 13, 15, 16}));
}

TEST(Selection, RowOfAContinuationSlotAddsNothing)
{
    const auto slots = drawnSpace(10, "AAAAB");
    EXPECT_EQ(select(*slots, {11, 12, 13, 14}), (std::vector{14}));
    EXPECT_TRUE(select(*slots, {11, 13}).empty());
}

TEST(Selection, FreeRowCountsAsOneRegister)
{
    const auto slots = drawnSpace(10, "A..#");
    EXPECT_EQ(select(*slots, {11, 12, 13}), (std::vector{11, 12, 13}));
}

TEST(Selection, OrderOfTheRowsAndRepeatsAreKept)
{
    const auto slots = drawnSpace(10, "AABB");
    EXPECT_EQ(select(*slots, {12, 10, 12}), (std::vector{12, 13, 10, 11, 12, 13}));
}

TEST(Selection, NothingIsTakenWhereNothingIsSelected)
{
    EXPECT_TRUE(select(*drawnSpace(10, "AABB"), {}).empty());
}

TEST(Selection, ObjectCutOffByTheEndOfTheSpaceEndsThere)
{
    const auto slots = drawnSpace(0, "");
    place(*slots, 65'534, registerOf("A", 4));
    EXPECT_EQ(select(*slots, {65'534}), (std::vector{65'534, 65'535}));
}

TEST(Selection, LargestPossibleCountEndsWithTheSpace)
{
    const auto slots = drawnSpace(65'530, "A");
    (*slots)[65'530].registerCount = std::numeric_limits<std::uint32_t>::max();
    EXPECT_EQ(select(*slots, {65'530}), (std::vector{65'530, 65'531, 65'532, 65'533, 65'534, 65'535}));
}

TEST(Selection, ObjectOfNoRegistersAddsNothing)
{
    const auto slots = drawnSpace(10, "A");
    (*slots)[10].registerCount = 0;
    EXPECT_TRUE(select(*slots, {10}).empty());
}

TEST(Selection, ObjectsThatCoverEachOtherAreTakenUpToABound)
{
    constexpr std::size_t longest = 16'777'216;
    const auto slots = drawnSpace(0, "A");
    (*slots)[0].registerCount = registersPerSpace;
    EXPECT_EQ(select(*slots, std::vector(1000, 0)).size(), longest);
}

TEST(Selection, RowsOutsideTheSpaceArePassedOver)
{
    const auto slots = drawnSpace(65'535, "A");
    EXPECT_EQ(select(*slots, {-1, 65'536, std::numeric_limits<int>::min(), 65'535, std::numeric_limits<int>::max()}),
              (std::vector{65'535}));
}
