// Which object is edited, and what a confirmed edit makes of it.

#include "tests/core/RegisterEditFixture.h"

#include <memory>
#include <random>

namespace
{

using RegisterEdit = RegisterEditFixture;

EditedRegister edited(std::string_view tagname, std::string_view typeName, std::int32_t registerCount)
{
    EditedRegister values;
    values.tagname = tagname;
    values.typeName = typeName;
    values.registerCount = registerCount;
    return values;
}

} // namespace

TEST_F(RegisterEdit, EveryRegisterOfAnObjectLeadsToItsHead)
{
    place(10, 4, "A");
    for (int address = 10; address < 14; ++address)
        EXPECT_EQ(editedHead(slots, address), 10);
    EXPECT_EQ(editedHead(slots, 14), 14);
}

TEST_F(RegisterEdit, WalkToTheHeadEndsAtAddressZero)
{
    place(0, 2, "A");
    EXPECT_EQ(editedHead(slots, 1), 0);
    slot(0).startAddress = 4294967295U;
    slot(1).startAddress = 4294967295U;
    EXPECT_EQ(editedHead(slots, 1), 0);
}

TEST_F(RegisterEdit, WalkFromARegisterWithoutHeadEndsAtTheFreeSlotBefore)
{
    place(10, 3, "A");
    map.clearSlot(RegisterSpace::Holding, 10);
    EXPECT_EQ(editedHead(slots, 12), 10);
}

TEST_F(RegisterEdit, VacatedContinuationIsEditedWhereItStands)
{
    place(10, 2, "A");
    slot(11).used = false;
    EXPECT_EQ(editedHead(slots, 11), 11);
}

TEST_F(RegisterEdit, AddressOutsideTheSpaceIsNotEdited)
{
    EXPECT_EQ(editedHead(slots, 65535), 65535);
    EXPECT_EQ(editedHead(slots, 65536), std::nullopt);
    EXPECT_EQ(editedHead(slots, highestCount), std::nullopt);
    EXPECT_EQ(editedHead(slots, -1), std::nullopt);
}

TEST_F(RegisterEdit, OnlyTheLockOfTheHeadKeepsFromEditing)
{
    place(10, 2, "A");
    slot(11).locked = true;
    EXPECT_EQ(editedHead(slots, 11), 10);
    slot(10).locked = true;
    EXPECT_EQ(editedHead(slots, 10), std::nullopt);
    EXPECT_EQ(editedHead(slots, 11), std::nullopt);
    slot(20).locked = true;
    EXPECT_EQ(editedHead(slots, 20), std::nullopt);
}

TEST_F(RegisterEdit, ConfirmedEditWritesEveryFieldOfEveryRegister)
{
    place(100, 1, "OLD", DataType::Int16);
    slot(100).tagIndex = 7;
    slot(100).typeValid = false;
    slot(100).writeValid = false;
    EditedRegister values = edited("NEW", "DOUBLE", 4);
    values.description = "Text";
    values.write = true;
    values.SwapWords = true;
    applyEdit(map, 100, values);

    for (int address = 100; address < 104; ++address)
    {
        RegisterEntry expected = freeSlot(address);
        expected.used = true;
        expected.startAddress = 100;
        expected.type = DataType::Double;
        expected.registerCount = 4;
        expected.SwapWords = true;
        expected.write = true;
        expected.tagname = InternedText("NEW");
        expected.description = InternedText("Text");
        EXPECT_EQ(slot(address), expected) << address;
    }
    EXPECT_EQ(slot(99), freeSlot(99));
    EXPECT_EQ(slot(104), freeSlot(104));
}

TEST_F(RegisterEdit, ShorterObjectFreesTheRestOfItsRegisters)
{
    place(10, 4, "A");
    place(14, 1, "B");
    applyEdit(map, 10, edited("A", "INT16", 1));
    EXPECT_EQ(picture(10, 5), "A...B");
    for (int address = 11; address < 14; ++address)
        EXPECT_EQ(slot(address), freeSlot(address));
}

TEST_F(RegisterEdit, EditOfAFreeRegisterMakesAnObjectThere)
{
    applyEdit(map, 500, edited("A", "INT32", 2));
    EXPECT_EQ(picture(499, 4), ".AA.");
    EXPECT_EQ(editedHead(slots, 501), 500);
}

TEST_F(RegisterEdit, UnknownTypeNameIsStoredAsInt16)
{
    place(10, 2, "A", DataType::Int32);
    applyEdit(map, 10, edited("A", "BOOL", 1));
    EXPECT_EQ(slot(10).type, DataType::Int16);
    EXPECT_EQ(picture(10, 2), "A.");
}

TEST_F(RegisterEdit, TypeKeepsOnlyTheSwapsItCanCarry)
{
    const auto swapsAfterEdit = [this](std::string_view typeName)
    {
        EditedRegister values = edited("A", typeName, 1);
        values.SwapBytes = true;
        values.SwapWords = true;
        values.SwapLongs = true;
        applyEdit(map, 10, values);
        const auto flags = byteOrderCharacters(slot(10));
        return std::string(flags.begin(), flags.end());
    };
    EXPECT_EQ(swapsAfterEdit("INT16"), "B--");
    EXPECT_EQ(swapsAfterEdit("INT32"), "BW-");
    EXPECT_EQ(swapsAfterEdit("FLOAT"), "BW-");
    EXPECT_EQ(swapsAfterEdit("DOUBLE"), "BWL");
    EXPECT_EQ(swapsAfterEdit("STRING"), "---");
    EXPECT_EQ(swapsAfterEdit("BOOL"), "B--");
}

TEST_F(RegisterEdit, SwapsThatAreNotSetStayUnset)
{
    applyEdit(map, 10, edited("A", "DOUBLE", 4));
    EXPECT_EQ(byteOrderCharacters(slot(10)), (std::array<char, 3>{'-', '-', '-'}));
}

TEST_F(RegisterEdit, LongerObjectMovesTheFollowingOneDown)
{
    place(10, 1, "A", DataType::Int16);
    place(11, 2, "B", DataType::Int32);
    EXPECT_EQ(checkSpace("4", editRoom(slots, 10)), SpaceCheck::FitsByMoving);
    applyEdit(map, 10, edited("A", "DOUBLE", 4));
    EXPECT_EQ(picture(10, 7), "AAAABB.");
    EXPECT_EQ(editedHead(slots, 15), 14);
}

TEST_F(RegisterEdit, MovingUsesUpTheGapsBetweenFollowingObjects)
{
    place(10, 1, "A");
    place(12, 1, "B");
    place(14, 2, "C");
    place(20, 1, "D");
    applyEdit(map, 10, edited("A", "STRING", 5));
    EXPECT_EQ(picture(10, 12), "AAAAABCC..D.");
}

TEST_F(RegisterEdit, MovingUsesTheLastRegisterBeforeALock)
{
    place(10, 1, "A");
    place(11, 2, "B");
    place(15, 1, "L");
    slot(15).locked = true;
    EXPECT_EQ(editRoom(slots, 10).movableRoom, 3);
    applyEdit(map, 10, edited("A", "STRING", 3));
    EXPECT_EQ(picture(10, 6), "AAABBL");
    EXPECT_TRUE(slot(15).locked);
}

TEST_F(RegisterEdit, MovingThatMeetsALockLeavesWhatIsWrittenSoFar)
{
    place(10, 1, "A");
    place(11, 2, "B");
    place(14, 1, "L");
    slot(14).locked = true;
    applyEdit(map, 10, edited("A", "STRING", 4));
    EXPECT_EQ(picture(10, 5), "AABBL");
    EXPECT_EQ(slot(10).registerCount, 4U);
}

TEST_F(RegisterEdit, MovingThatMeetsTheEndOfTheSpaceLeavesWhatIsWrittenSoFar)
{
    place(65531, 1, "A");
    place(65532, 3, "B");
    applyEdit(map, 65531, edited("A", "STRING", 4));
    EXPECT_EQ(picture(65531, 5), "AABBB");
}

TEST_F(RegisterEdit, RegistersBehindTheEndOfTheSpaceAreDropped)
{
    place(65534, 4, "A", DataType::Double);
    EditedRegister values = edited("B", "DOUBLE", 4);
    applyEdit(map, 65534, values);
    EXPECT_EQ(picture(65533, 3), ".BB");
    EXPECT_EQ(slot(65535).registerCount, 4U);
    EXPECT_EQ(slot(65535).startAddress, 65534U);
}

TEST_F(RegisterEdit, EnormousCountFillsTheSpaceAndIsKept)
{
    place(65000, 1, "A");
    slot(65000).registerCount = 4294967295U;
    slot(0).tagname = InternedText("UNTOUCHED");
    applyEdit(map, 65000, edited("B", "STRING", highestCount));
    EXPECT_EQ(picture(64999, 537), "." + std::string(536, 'B'));
    EXPECT_EQ(slot(65535).registerCount, 2147483647U);
    EXPECT_EQ(slot(0).tagname, InternedText("UNTOUCHED"));
}

TEST_F(RegisterEdit, LocksOfContinuationsGoWithTheOldObject)
{
    place(10, 2, "A");
    slot(11).locked = true;
    applyEdit(map, 10, edited("A", "INT32", 2));
    EXPECT_FALSE(slot(11).locked);
    EXPECT_EQ(picture(10, 2), "AA");
}

TEST_F(RegisterEdit, LockedHeadAndAddressesOutsideTheSpaceAreLeftAlone)
{
    place(10, 1, "A");
    slot(10).locked = true;
    const auto before = std::make_unique<RegisterSlots>(slots);
    applyEdit(map, 10, edited("B", "INT16", 1));
    applyEdit(map, -1, edited("B", "INT16", 1));
    applyEdit(map, 65536, edited("B", "INT16", 1));
    EXPECT_TRUE(slots == *before);
}

TEST_F(RegisterEdit, EditWithoutChangesLeavesTheSlotsAsTheyWere)
{
    place(10, 3, "A");
    place(13, 2, "B");
    const auto before = std::make_unique<RegisterSlots>(slots);
    applyEdit(map, 10, edited("A", "STRING", 3));
    EXPECT_TRUE(slots == *before);
}

namespace
{

/// Pushes one slot a place down, and first whatever is in its way: one register at a time.
bool pushDown(RegisterSlots& slots, int address)
{
    if (!RegisterSlots::contains(address + 1) || slots[address].locked || slots[address + 1].locked)
        return false;
    if (slots[address + 1].used && !pushDown(slots, address + 1))
        return false;
    slots[address + 1] = slots[address];
    ++slots[address + 1].startAddress;
    ++slots[address + 1].address;
    slots[address].used = false;
    return true;
}

/// The placement done register by register, each one pushing away what it finds.
void placeOneByOne(RegisterSlots& slots, int head, const RegisterEntry& entry)
{
    for (int i = 0; i < static_cast<int>(entry.registerCount); ++i)
    {
        const int target = head + i;
        if (!RegisterSlots::contains(target) || (slots[target].used && !pushDown(slots, target)))
            return;
        slots[target] = entry;
        slots[target].address = static_cast<std::uint32_t>(target);
    }
}

} // namespace

TEST_F(RegisterEdit, AnyPlacementEqualsPlacingRegisterByRegister)
{
    std::mt19937 random(20);
    const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
    for (int round = 0; round < 100; ++round)
    {
        const int first = round % 2 == 0 ? 1000 : registersPerSpace - 24;
        clearSlots(slots, 0, registersPerSpace);
        for (int address = first; address < first + 24; address += 1 + below(4))
            place(address, 1 + below(3), "O");
        for (int address = first + 4; address < first + 24; ++address)
            slot(address).locked = below(24) == 0;
        const int head = *editedHead(slots, first + below(4));
        const int count = 1 + below(8);
        const auto expected = std::make_unique<RegisterSlots>(slots);
        clearSlots(*expected, head, (*expected)[head].registerCount);
        RegisterEntry entry = freeSlot(head);
        entry.used = true;
        entry.type = DataType::String;
        entry.registerCount = static_cast<std::uint32_t>(count);
        entry.tagname = InternedText("N");
        placeOneByOne(*expected, head, entry);

        applyEdit(map, head, edited("N", "STRING", count));
        ASSERT_TRUE(slots == *expected) << "round " << round << ": " << picture(first, 24);
    }
}
