#include "map/Compress.h"

#include "map/RegisterMoves.h"
#include "tests/core/MapBuilder.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

/// What a stretch looks like after compressing between two of its addresses, every field of it looked at.
std::string compressed(std::string_view picture, int from, int to, int first = 10)
{
    const auto slots = drawnSpace(first, picture);
    compressRegisters(*slots, std::vector{from, to});
    const std::string result = pictureOf(*slots, first, static_cast<int>(picture.size()));
    return looksLike(*slots, first, result) ? result : result + " with other contents";
}

CompressResult resultOf(std::string_view picture, const std::vector<int>& addresses)
{
    const auto slots = drawnSpace(10, picture);
    const CompressResult result = compressRegisters(*slots, addresses);
    if (result != CompressResult::Compressed)
    {
        EXPECT_TRUE(looksLike(*slots, 10, picture));
    }
    return result;
}

} // namespace

TEST(Compress, ObjectsFollowEachOtherAndLeaveCleanFreeSlots)
{
    const auto slots = drawnSpace(100, "A...BB....C..........");
    EXPECT_EQ(compressRegisters(*slots, std::vector{100, 120}), CompressResult::Compressed);
    EXPECT_TRUE(looksLike(*slots, 100, "ABBC................."));
}

TEST(Compress, RangeHoldingALockedObjectIsRefusedAndUnchanged)
{
    EXPECT_EQ(resultOf("A..bb.C", {10, 16}), CompressResult::Locked);
}

TEST(Compress, RangeHoldingALockedGapIsRefusedAndUnchanged)
{
    EXPECT_EQ(resultOf("A..#..C", {10, 16}), CompressResult::Locked);
    EXPECT_EQ(resultOf("A.....#", {10, 16}), CompressResult::Locked);
    EXPECT_EQ(resultOf("#.....C", {10, 16}), CompressResult::Locked);
}

TEST(Compress, LocksOutsideTheRangeDoNotMatter)
{
    EXPECT_EQ(compressed("a.B.C.d", 11, 15), "aBC...d");
}

TEST(Compress, NothingOutsideTheRangeMoves)
{
    EXPECT_EQ(compressed(".A.B.C.", 12, 14), ".AB..C.");
}

TEST(Compress, ObjectsBetweenTheSelectedOnesAreIncluded)
{
    const auto slots = drawnSpace(10, "A.BB.C");
    compressRegisters(*slots, std::vector{10, 15});
    EXPECT_TRUE(looksLike(*slots, 10, "ABBC.."));
}

TEST(Compress, OnlyTheFirstAndTheLastAddressOfTheListCount)
{
    const auto slots = drawnSpace(10, "A.B.C.D");
    compressRegisters(*slots, std::vector{10, 16, -5, 14});
    EXPECT_TRUE(looksLike(*slots, 10, "ABC...D"));
}

TEST(Compress, ObjectMayOverlapItsOldPlace)
{
    EXPECT_EQ(compressed(".AAAAAAA", 10, 17), "AAAAAAA.");
}

TEST(Compress, WholeRangeMayLieAtTheEndsOfTheSpace)
{
    EXPECT_EQ(compressed(".A.BB", 0, 4, 0), "ABB..");
    EXPECT_EQ(compressed(".A.BB", 65'531, 65'535, 65'531), "ABB..");
}

TEST(Compress, RangeWithoutGapsIsUnchanged)
{
    EXPECT_EQ(resultOf("AABCC", {10, 14}), CompressResult::Unchanged);
}

TEST(Compress, ListFromBottomToTopOnlyAsksForANewView)
{
    EXPECT_EQ(resultOf("A.B", {12, 10}), CompressResult::Unchanged);
}

TEST(Compress, NothingSelectedIsNothing)
{
    EXPECT_EQ(resultOf("A.B", {}), CompressResult::NothingSelected);
}

TEST(Compress, ListReachingOutsideTheSpaceIsNothing)
{
    EXPECT_EQ(resultOf("A.B", {-1, 12}), CompressResult::NothingSelected);
    EXPECT_EQ(resultOf("A.B", {10, 65'536}), CompressResult::NothingSelected);
    EXPECT_EQ(resultOf("A.B", {10, std::numeric_limits<int>::max()}), CompressResult::NothingSelected);
}

TEST(Compress, RangeThatIsAllFreeStaysSo)
{
    EXPECT_EQ(compressed("A....B", 11, 14), "A....B");
    EXPECT_EQ(resultOf("A....B", {11, 14}), CompressResult::Compressed);
}

TEST(Compress, SlotVacatedByAMoveIsAGapAndComesOutClean)
{
    const auto slots = drawnSpace(10, "AA.B");
    moveSlots(*slots, std::vector{10, 11}, MoveDirection::Down, false);
    compressRegisters(*slots, std::vector{10, 13});
    EXPECT_TRUE(looksLike(*slots, 10, "AAB."));
}

TEST(Compress, UsedSlotWithoutAHeadStaysWhereNoObjectComesToLie)
{
    const auto slots = drawnSpace(10, ".BB.CC");
    (*slots)[11] = freeSlot(11);
    EXPECT_EQ(compressRegisters(*slots, std::vector{12, 15}), CompressResult::Compressed);
    EXPECT_EQ(pictureOf(*slots, 10, 6), "..BCC.");
}

TEST(Compress, UsedSlotWithoutAHeadIsWrittenOver)
{
    const auto slots = drawnSpace(10, ".BB.CC");
    (*slots)[11] = freeSlot(11);
    compressRegisters(*slots, std::vector{11, 15});
    EXPECT_EQ(pictureOf(*slots, 10, 6), ".CC...");
    EXPECT_TRUE(looksLike(*slots, 10, ".CC..."));
}

TEST(Compress, ObjectCutOffByTheEndOfTheSpaceMovesAsFarAsItIsThere)
{
    const auto slots = drawnSpace(65'530, "A...");
    place(*slots, 65'534, registerOf("B", 4));
    EXPECT_EQ(compressRegisters(*slots, std::vector{65'530, 65'535}), CompressResult::Compressed);
    EXPECT_EQ(pictureOf(*slots, 65'530, 6), "ABB...");
    EXPECT_EQ((*slots)[65'532].startAddress, 65'531U);
    EXPECT_EQ((*slots)[65'532].registerCount, 4U);
}

TEST(Compress, ObjectReachingBeyondTheRangeMovesWhole)
{
    const auto slots = drawnSpace(10, ".AAAB");
    compressRegisters(*slots, std::vector{10, 11});
    EXPECT_TRUE(looksLike(*slots, 10, "AAA.B"));
}

TEST(Compress, CountBeyondTheSpaceTakesWhatFollows)
{
    const auto slots = drawnSpace(65'531, ".AB..");
    (*slots)[65'532].registerCount = std::numeric_limits<std::uint32_t>::max();
    EXPECT_EQ(compressRegisters(*slots, std::vector{65'531, 65'535}), CompressResult::Compressed);
    EXPECT_EQ(pictureOf(*slots, 65'531, 5), "AB...");
    EXPECT_EQ((*slots)[65'532].startAddress, 65'531U);
}

TEST(Compress, ObjectOfNoRegistersIsPassedOver)
{
    const auto slots = drawnSpace(10, ".AB");
    (*slots)[11].registerCount = 0;
    compressRegisters(*slots, std::vector{10, 12});
    EXPECT_EQ(pictureOf(*slots, 10, 3), "BA.");
}
