#include "map/RegisterMoves.h"

#include "tests/core/MapBuilder.h"

#include <gtest/gtest.h>

#include <limits>
#include <numeric>

namespace
{

constexpr bool shoving = true;
constexpr bool plain = false;

MoveResult move(RegisterSlots& slots, const std::vector<int>& addresses, MoveDirection direction, bool shove)
{
    return moveSlots(slots, addresses, direction, shove);
}

std::vector<int> range(int first, int last)
{
    std::vector<int> addresses(static_cast<std::size_t>(last - first + 1));
    std::iota(addresses.begin(), addresses.end(), first);
    return addresses;
}

} // namespace

TEST(RegisterMoves, ObjectAtTheStartOfTheSpaceDoesNotMoveUp)
{
    const auto slots = drawnSpace(0, "AAB");
    for (const bool shove : {plain, shoving})
    {
        const MoveResult result = move(*slots, {0, 1}, MoveDirection::Up, shove);
        EXPECT_EQ(result.positions, (std::vector{0, 1}));
        EXPECT_TRUE(result.changed.empty());
        EXPECT_TRUE(looksLike(*slots, 0, "AAB"));
    }
}

TEST(RegisterMoves, ObjectAtTheEndOfTheSpaceDoesNotMoveDown)
{
    const auto slots = drawnSpace(65'533, "BAA");
    for (const bool shove : {plain, shoving})
    {
        const MoveResult result = move(*slots, {65'534, 65'535}, MoveDirection::Down, shove);
        EXPECT_EQ(result.positions, (std::vector{65'535, 65'534}));
        EXPECT_TRUE(result.changed.empty());
        EXPECT_TRUE(looksLike(*slots, 65'533, "BAA"));
    }
}

TEST(RegisterMoves, OccupiedNeighbourStopsAPlainMove)
{
    const auto slots = drawnSpace(10, "AAB.");
    const MoveResult result = move(*slots, {10, 11}, MoveDirection::Down, plain);
    EXPECT_EQ(result.positions, (std::vector{11, 10}));
    EXPECT_TRUE(result.changed.empty());
    EXPECT_TRUE(looksLike(*slots, 10, "AAB."));
}

TEST(RegisterMoves, OccupiedNeighbourIsShovedAlong)
{
    const auto slots = drawnSpace(10, "AAB.");
    const MoveResult result = move(*slots, {10, 11}, MoveDirection::Down, shoving);
    EXPECT_EQ(pictureOf(*slots, 10, 4), ".AAB");
    EXPECT_TRUE(looksLike(*slots, 11, "AAB"));
    EXPECT_EQ(result.positions, (std::vector{12, 11}));
    EXPECT_EQ(result.changed, (std::vector{13, 12, 11}));
}

TEST(RegisterMoves, ShoveUpPushesTheRunAbove)
{
    const auto slots = drawnSpace(10, ".BCAA");
    const MoveResult result = move(*slots, {13, 14}, MoveDirection::Up, shoving);
    EXPECT_EQ(pictureOf(*slots, 10, 5), "BCAA.");
    EXPECT_TRUE(looksLike(*slots, 10, "BCAA"));
    EXPECT_EQ(result.positions, (std::vector{12, 13}));
    EXPECT_EQ(result.changed, (std::vector{10, 11, 12, 13}));
}

TEST(RegisterMoves, ShoveAgainstALockMovesNothingAtAll)
{
    for (const char* picture : {"AAB#", "AABc.", "AABBCd"})
    {
        const auto slots = drawnSpace(10, picture);
        const MoveResult result = move(*slots, {10, 11}, MoveDirection::Down, shoving);
        EXPECT_EQ(result.positions, (std::vector{11, 10}));
        EXPECT_TRUE(result.changed.empty());
        EXPECT_TRUE(looksLike(*slots, 10, picture));
    }
}

TEST(RegisterMoves, ShoveAgainstAnEndOfTheSpaceMovesNothingAtAll)
{
    const auto slots = drawnSpace(0, "BBA");
    draw(*slots, 65'533, "ABB");
    EXPECT_TRUE(move(*slots, {2}, MoveDirection::Up, shoving).changed.empty());
    EXPECT_TRUE(move(*slots, {65'533}, MoveDirection::Down, shoving).changed.empty());
    EXPECT_TRUE(looksLike(*slots, 0, "BBA"));
    EXPECT_TRUE(looksLike(*slots, 65'533, "ABB"));
}

TEST(RegisterMoves, SelectedNeighboursMoveTogether)
{
    const auto slots = drawnSpace(10, "AB.");
    const MoveResult result = move(*slots, {10, 11}, MoveDirection::Down, plain);
    EXPECT_EQ(pictureOf(*slots, 10, 3), ".AB");
    EXPECT_EQ(result.positions, (std::vector{12, 11}));
    EXPECT_EQ(result.changed, (std::vector{12, 11}));
}

TEST(RegisterMoves, LockedSlotStaysAndOthersMoveOn)
{
    const auto slots = drawnSpace(10, "a.B.");
    const MoveResult result = move(*slots, {10, 12}, MoveDirection::Down, shoving);
    EXPECT_EQ(pictureOf(*slots, 10, 4), "a..B");
    EXPECT_EQ(result.positions, (std::vector{13, 10}));
}

TEST(RegisterMoves, NothingMovesIntoALockedFreeSlot)
{
    const auto slots = drawnSpace(10, "A#");
    EXPECT_EQ(move(*slots, {10}, MoveDirection::Down, plain).positions, (std::vector{10}));
    EXPECT_EQ(move(*slots, {10}, MoveDirection::Down, shoving).positions, (std::vector{10}));
    EXPECT_TRUE(looksLike(*slots, 10, "A#"));
}

TEST(RegisterMoves, MovedRegistersKeepEverythingButTheirAddresses)
{
    const auto slots = drawnSpace(10, "AA.");
    (*slots)[10].typeValid = false;
    (*slots)[10].tagIndex = -1;
    RegisterEntry expected = (*slots)[10];
    expected.startAddress = 11;
    expected.address = 11;
    move(*slots, {10, 11}, MoveDirection::Down, plain);
    EXPECT_EQ((*slots)[11], expected);
    EXPECT_EQ((*slots)[12].startAddress, 11U);
}

TEST(RegisterMoves, VacatedSlotOnlyStopsBeingUsed)
{
    const auto slots = drawnSpace(10, "AA.");
    RegisterEntry expected = (*slots)[10];
    expected.used = false;
    move(*slots, {10, 11}, MoveDirection::Down, plain);
    EXPECT_EQ((*slots)[10], expected);
}

TEST(RegisterMoves, MoveThereAndBackLeavesTheVacatedSlotBehind)
{
    const auto slots = drawnSpace(10, "A.");
    move(*slots, {10}, MoveDirection::Down, plain);
    move(*slots, {11}, MoveDirection::Up, plain);
    EXPECT_TRUE(looksLike(*slots, 10, "A"));
    EXPECT_FALSE((*slots)[11].used);
    EXPECT_EQ((*slots)[11].tagname.view(), "A");
}

TEST(RegisterMoves, AddressesOutsideTheSpaceStay)
{
    const auto slots = drawnSpace(10, "A");
    const std::vector<int> outside{std::numeric_limits<int>::min(), -1, 65'536, std::numeric_limits<int>::max()};
    for (const MoveDirection direction : {MoveDirection::Up, MoveDirection::Down})
    {
        std::vector<int> changed{7};
        SlotMover mover(*slots, direction, shoving);
        for (const int address : outside)
            EXPECT_FALSE(mover.moveSlot(address, changed));
        EXPECT_EQ(changed, (std::vector{7}));
    }
    EXPECT_EQ(moveSlots(*slots, outside, MoveDirection::Up, shoving).positions, outside);
}

TEST(RegisterMoves, EmptyListDoesNothing)
{
    const auto slots = drawnSpace(10, "A");
    const MoveResult result = move(*slots, {}, MoveDirection::Down, shoving);
    EXPECT_TRUE(result.positions.empty());
    EXPECT_TRUE(result.changed.empty());
}

TEST(RegisterMoves, FreeSlotMovesAsItStandsAndMakesAGap)
{
    const auto slots = drawnSpace(10, ".BB.");
    std::vector<int> changed;
    EXPECT_TRUE(SlotMover(*slots, MoveDirection::Down, shoving).moveSlot(10, changed));
    EXPECT_TRUE(looksLike(*slots, 10, "..BB"));
    EXPECT_EQ(changed, (std::vector{13, 12, 11}));
}

TEST(RegisterMoves, StartAddressBelowZeroWrapsAround)
{
    const auto slots = drawnSpace(0, "A.");
    (*slots)[0].startAddress = std::numeric_limits<std::uint32_t>::max();
    move(*slots, {0}, MoveDirection::Down, plain);
    EXPECT_EQ((*slots)[1].startAddress, 0U);
    move(*slots, {1}, MoveDirection::Up, plain);
    EXPECT_EQ((*slots)[0].startAddress, std::numeric_limits<std::uint32_t>::max());
}

TEST(RegisterMoves, ListOutOfOrderBlocksItself)
{
    const auto slots = drawnSpace(10, "AB.");
    const MoveResult result = move(*slots, {11, 10}, MoveDirection::Down, plain);
    EXPECT_EQ(pictureOf(*slots, 10, 3), "A.B");
    EXPECT_EQ(result.positions, (std::vector{10, 12}));
}

TEST(RegisterMoves, AddressListedTwiceShovesTheVacatedSlotAfterTheFirst)
{
    const auto slots = drawnSpace(10, "A..");
    const MoveResult result = move(*slots, {10, 10}, MoveDirection::Down, shoving);
    EXPECT_EQ(pictureOf(*slots, 10, 3), "..A");
    EXPECT_EQ(result.positions, (std::vector{11, 11}));
    EXPECT_EQ(result.changed, (std::vector{11, 12, 11}));
}

TEST(RegisterMoves, StuckFreeSlotStillTakesARegisterIn)
{
    const auto slots = drawnSpace(10, "A.BB#");
    const MoveResult result = move(*slots, {10, 11}, MoveDirection::Down, shoving);
    EXPECT_EQ(result.positions, (std::vector{11, 11}));
    EXPECT_EQ(pictureOf(*slots, 10, 5), ".ABB#");
    EXPECT_TRUE(looksLike(*slots, 11, "ABB#"));
}

TEST(RegisterMoves, PlainMoveFollowsANeighbourThatLeavesLater)
{
    const auto slots = drawnSpace(10, "AB.");
    const MoveResult result = move(*slots, {10, 11, 10}, MoveDirection::Down, plain);
    EXPECT_EQ(result.positions, (std::vector{10, 12, 11}));
    EXPECT_EQ(pictureOf(*slots, 10, 3), ".AB");
}

TEST(RegisterMoves, LongRunIsShovedWithoutDeepCalls)
{
    const auto slots = drawnSpace(0, std::string(65'535, 'A') + ".");
    std::vector<int> changed;
    EXPECT_TRUE(SlotMover(*slots, MoveDirection::Down, shoving).moveSlot(0, changed));
    EXPECT_EQ(changed.size(), 65'535U);
    EXPECT_EQ(changed.front(), 65'535);
    EXPECT_EQ(changed.back(), 1);
    EXPECT_FALSE((*slots)[0].used);
    EXPECT_EQ((*slots)[65'535].startAddress, 1U);
}

TEST(RegisterMoves, LargeSelectionBeforeALockedRunStays)
{
    const std::string picture = std::string(30'000, 'A') + std::string(30'000, 'B') + "#";
    const auto slots = drawnSpace(0, picture);
    const MoveResult result = moveSlots(*slots, range(0, 29'999), MoveDirection::Down, shoving);
    EXPECT_TRUE(result.changed.empty());
    EXPECT_EQ(result.positions.front(), 29'999);
    EXPECT_EQ(result.positions.back(), 0);
    EXPECT_TRUE(looksLike(*slots, 0, picture));
}
