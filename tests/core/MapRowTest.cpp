#include "map/MapRow.h"

#include "tests/core/MapBuilder.h"

#include <gtest/gtest.h>

namespace
{

RegisterEntry head()
{
    RegisterEntry slot = registerOf("Tank1Level", 2);
    slot.startAddress = 100;
    slot.address = 100;
    slot.description = InternedText("Level of tank 1");
    return slot;
}

RegisterEntry continuation()
{
    RegisterEntry slot = head();
    slot.address = 101;
    return slot;
}

MapCell cell(const RegisterEntry& slot, MapColumn column)
{
    return fillMapRow(slot)[static_cast<std::size_t>(column)];
}

void expectCell(const RegisterEntry& slot, MapColumn column, std::string_view text, MapTone tone)
{
    const MapCell shown = cell(slot, column);
    EXPECT_EQ(shown.text, text) << "column " << static_cast<int>(column);
    EXPECT_EQ(shown.tone, tone) << "column " << static_cast<int>(column);
}

} // namespace

TEST(MapRow, HeadShowsItsObject)
{
    expectCell(head(), MapColumn::Marker, "", MapTone::Plain);
    expectCell(head(), MapColumn::Address, "00100", MapTone::Sound);
    expectCell(head(), MapColumn::Name, "Tank1Level", MapTone::Sound);
    expectCell(head(), MapColumn::Type, "FLOAT", MapTone::Sound);
    expectCell(head(), MapColumn::Size, "2", MapTone::Plain);
    expectCell(head(), MapColumn::Write, "Read", MapTone::ReadOnly);
    expectCell(head(), MapColumn::Order, "-W-", MapTone::Plain);
    expectCell(head(), MapColumn::Description, "Level of tank 1", MapTone::Plain);
}

TEST(MapRow, ContinuationShowsColons)
{
    expectCell(continuation(), MapColumn::Marker, "", MapTone::Plain);
    expectCell(continuation(), MapColumn::Address, "00101", MapTone::Sound);
    expectCell(continuation(), MapColumn::Name, ":", MapTone::Continuation);
    expectCell(continuation(), MapColumn::Type, ":", MapTone::Continuation);
    for (const MapColumn column : {MapColumn::Size, MapColumn::Write, MapColumn::Order, MapColumn::Description})
        expectCell(continuation(), column, ":", MapTone::Plain);
}

TEST(MapRow, FreeSlotShowsItsAddressAlone)
{
    const RegisterEntry slot = freeSlot(65535);
    expectCell(slot, MapColumn::Marker, "", MapTone::Plain);
    expectCell(slot, MapColumn::Address, "65535", MapTone::Free);
    expectCell(slot, MapColumn::Name, "", MapTone::Free);
    expectCell(slot, MapColumn::Type, "", MapTone::Free);
    for (const MapColumn column : {MapColumn::Size, MapColumn::Write, MapColumn::Order, MapColumn::Description})
        expectCell(slot, column, "", MapTone::Plain);
}

TEST(MapRow, FreeSlotHidesWhatAnEarlierObjectLeft)
{
    RegisterEntry slot = head();
    slot.used = false;
    slot.locked = true;
    slot.tagIndex = -1;
    slot.typeValid = false;
    const MapRow row = fillMapRow(slot);
    const MapRow expected = fillMapRow(freeSlot(100));
    for (std::size_t column = 0; column < row.size(); ++column)
    {
        EXPECT_EQ(row[column].text, expected[column].text) << column;
        EXPECT_EQ(row[column].tone, expected[column].tone) << column;
    }
}

TEST(MapRow, LockedRegistersAreMarked)
{
    for (RegisterEntry slot : {head(), continuation()})
    {
        slot.locked = true;
        expectCell(slot, MapColumn::Marker, "L", MapTone::Lock);
    }
}

TEST(MapRow, EachErrorIsMarkedOnHeadAndContinuation)
{
    for (RegisterEntry slot : {head(), continuation()})
    {
        slot.tagIndex = -1;
        expectCell(slot, MapColumn::Marker, "!!", MapTone::Warning);
        slot.tagIndex = 0;
        expectCell(slot, MapColumn::Marker, "", MapTone::Plain);
        slot.typeValid = false;
        expectCell(slot, MapColumn::Marker, "!!", MapTone::Warning);
        slot.typeValid = true;
        slot.writeValid = false;
        expectCell(slot, MapColumn::Marker, "!!", MapTone::Warning);
    }
}

TEST(MapRow, LockIsShownRatherThanTheError)
{
    RegisterEntry slot = head();
    slot.locked = true;
    slot.tagIndex = -1;
    expectCell(slot, MapColumn::Marker, "L", MapTone::Lock);
}

TEST(MapRow, NameOfAnUnknownTagIsAnError)
{
    RegisterEntry slot = head();
    slot.tagIndex = -1;
    expectCell(slot, MapColumn::Name, "Tank1Level", MapTone::Error);
    expectCell(slot, MapColumn::Type, "FLOAT", MapTone::Sound);
    slot = continuation();
    slot.tagIndex = -1;
    expectCell(slot, MapColumn::Name, ":", MapTone::Error);
    expectCell(slot, MapColumn::Type, ":", MapTone::Continuation);
}

TEST(MapRow, BadTypeIsAnError)
{
    RegisterEntry slot = head();
    slot.typeValid = false;
    expectCell(slot, MapColumn::Type, "FLOAT", MapTone::Error);
    expectCell(slot, MapColumn::Name, "Tank1Level", MapTone::Sound);
    slot = continuation();
    slot.typeValid = false;
    expectCell(slot, MapColumn::Type, ":", MapTone::Error);
    expectCell(slot, MapColumn::Name, ":", MapTone::Continuation);
}

TEST(MapRow, WriteIsAnErrorWhereTheTagTakesNoneAndReadNever)
{
    RegisterEntry slot = head();
    slot.write = true;
    expectCell(slot, MapColumn::Write, "Write", MapTone::Writable);
    slot.writeValid = false;
    expectCell(slot, MapColumn::Write, "Write", MapTone::Error);
    slot.write = false;
    expectCell(slot, MapColumn::Write, "Read", MapTone::ReadOnly);
}

TEST(MapRow, BadWriteLeavesTheColonsOfAContinuation)
{
    RegisterEntry slot = continuation();
    slot.write = true;
    slot.writeValid = false;
    expectCell(slot, MapColumn::Write, ":", MapTone::Plain);
    expectCell(slot, MapColumn::Marker, "!!", MapTone::Warning);
}

TEST(MapRow, OrderHasACharacterForEachFlag)
{
    RegisterEntry slot = head();
    slot.SwapBytes = true;
    slot.SwapWords = false;
    slot.SwapLongs = true;
    expectCell(slot, MapColumn::Order, "B-L", MapTone::Plain);
}

TEST(MapRow, TypeCodeOutsideTheFiveHasItsOwnName)
{
    RegisterEntry slot = head();
    slot.type = static_cast<DataType>(5);
    expectCell(slot, MapColumn::Type, "UNKOWN", MapTone::Sound);
}

TEST(MapRow, SizeIsTheWholeCountOfATruncatedObject)
{
    RegisterEntry slot = head();
    slot.registerCount = 2147483647;
    expectCell(slot, MapColumn::Size, "2147483647", MapTone::Plain);
}

TEST(MapRow, RegisterOfANegativeAddressIsAContinuation)
{
    RegisterEntry slot = head();
    slot.startAddress = 4294967294U;
    slot.address = 0;
    expectCell(slot, MapColumn::Address, "00000", MapTone::Sound);
    expectCell(slot, MapColumn::Name, ":", MapTone::Continuation);
}

TEST(MapRow, TextsAreShownAsTheyStand)
{
    RegisterEntry slot = head();
    slot.tagname = InternedText("Behälter.1");
    slot.description = InternedText("a, b {c}");
    slot.write = true;
    expectCell(slot, MapColumn::Name, "Behälter.1", MapTone::Sound);
    expectCell(slot, MapColumn::Description, "a, b {c}", MapTone::Plain);
}

TEST(MapRow, NoteTellsOfALockAtTheAddressOfFreeRegistersToo)
{
    for (RegisterEntry slot : {head(), continuation(), freeSlot(100)})
    {
        EXPECT_EQ(mapCellNote(slot, MapColumn::Address), "");
        slot.locked = true;
        EXPECT_EQ(mapCellNote(slot, MapColumn::Address), "locked");
        EXPECT_EQ(mapCellNote(slot, MapColumn::Marker), "");
    }
}

TEST(MapRow, NoteTellsWhatStandsForTheColonsOfAContinuation)
{
    EXPECT_EQ(mapCellNote(continuation(), MapColumn::Name), "Tank1Level");
    EXPECT_EQ(mapCellNote(continuation(), MapColumn::Type), "FLOAT");
    EXPECT_EQ(mapCellNote(continuation(), MapColumn::Size), "2");
    EXPECT_EQ(mapCellNote(continuation(), MapColumn::Write), "Read");
    EXPECT_EQ(mapCellNote(continuation(), MapColumn::Order), "-W-");
    EXPECT_EQ(mapCellNote(continuation(), MapColumn::Description), "Level of tank 1");
}

TEST(MapRow, NoteSaysNothingOfHeadsAndOfWhatAnEarlierObjectLeft)
{
    RegisterEntry vacated = continuation();
    vacated.used = false;
    for (const RegisterEntry& slot : {head(), vacated})
    {
        for (const MapColumn column : {MapColumn::Name, MapColumn::Size, MapColumn::Description})
            EXPECT_EQ(mapCellNote(slot, column), "");
    }
}
