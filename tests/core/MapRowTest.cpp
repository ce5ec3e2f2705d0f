#include "map/MapRow.h"

#include "tests/core/MapBuilder.h"

#include <gtest/gtest.h>

namespace
{

constexpr Rgb red{255, 0, 0};
constexpr Rgb yellow{255, 255, 0};
constexpr Rgb orange{255, 150, 0};
constexpr Rgb lime{217, 255, 0};
constexpr Rgb bright{220, 220, 220};
constexpr Rgb violet{120, 120, 200};
constexpr Rgb dim{80, 80, 80};
constexpr Rgb plain{192, 192, 192};

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

void expectCell(const RegisterEntry& slot, MapColumn column, std::string_view text, Rgb colour)
{
    const MapCell shown = cell(slot, column);
    EXPECT_EQ(shown.text, text) << "column " << static_cast<int>(column);
    EXPECT_EQ(shown.colour, colour) << "column " << static_cast<int>(column);
}

} // namespace

TEST(MapRow, HeadShowsItsObject)
{
    expectCell(head(), MapColumn::Marker, "", plain);
    expectCell(head(), MapColumn::Address, "00100", bright);
    expectCell(head(), MapColumn::Name, "Tank1Level", bright);
    expectCell(head(), MapColumn::Type, "FLOAT", bright);
    expectCell(head(), MapColumn::Size, "2", plain);
    expectCell(head(), MapColumn::Write, "Read", lime);
    expectCell(head(), MapColumn::Order, "-W-", plain);
    expectCell(head(), MapColumn::Description, "Level of tank 1", plain);
}

TEST(MapRow, ContinuationShowsColons)
{
    expectCell(continuation(), MapColumn::Marker, "", plain);
    expectCell(continuation(), MapColumn::Address, "00101", bright);
    expectCell(continuation(), MapColumn::Name, ":", violet);
    expectCell(continuation(), MapColumn::Type, ":", violet);
    for (const MapColumn column : {MapColumn::Size, MapColumn::Write, MapColumn::Order, MapColumn::Description})
        expectCell(continuation(), column, ":", plain);
}

TEST(MapRow, FreeSlotShowsItsAddressAlone)
{
    const RegisterEntry slot = freeSlot(65535);
    expectCell(slot, MapColumn::Marker, "", plain);
    expectCell(slot, MapColumn::Address, "65535", dim);
    expectCell(slot, MapColumn::Name, "", dim);
    expectCell(slot, MapColumn::Type, "", dim);
    for (const MapColumn column : {MapColumn::Size, MapColumn::Write, MapColumn::Order, MapColumn::Description})
        expectCell(slot, column, "", plain);
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
        EXPECT_EQ(row[column].colour, expected[column].colour) << column;
    }
}

TEST(MapRow, LockedRegistersAreMarked)
{
    for (RegisterEntry slot : {head(), continuation()})
    {
        slot.locked = true;
        expectCell(slot, MapColumn::Marker, "L", red);
    }
}

TEST(MapRow, EachErrorIsMarkedOnHeadAndContinuation)
{
    for (RegisterEntry slot : {head(), continuation()})
    {
        slot.tagIndex = -1;
        expectCell(slot, MapColumn::Marker, "!!", yellow);
        slot.tagIndex = 0;
        expectCell(slot, MapColumn::Marker, "", plain);
        slot.typeValid = false;
        expectCell(slot, MapColumn::Marker, "!!", yellow);
        slot.typeValid = true;
        slot.writeValid = false;
        expectCell(slot, MapColumn::Marker, "!!", yellow);
    }
}

TEST(MapRow, LockIsShownRatherThanTheError)
{
    RegisterEntry slot = head();
    slot.locked = true;
    slot.tagIndex = -1;
    expectCell(slot, MapColumn::Marker, "L", red);
}

TEST(MapRow, UnknownTagHasARedName)
{
    RegisterEntry slot = head();
    slot.tagIndex = -1;
    expectCell(slot, MapColumn::Name, "Tank1Level", red);
    expectCell(slot, MapColumn::Type, "FLOAT", bright);
    slot = continuation();
    slot.tagIndex = -1;
    expectCell(slot, MapColumn::Name, ":", red);
    expectCell(slot, MapColumn::Type, ":", violet);
}

TEST(MapRow, BadTypeIsRed)
{
    RegisterEntry slot = head();
    slot.typeValid = false;
    expectCell(slot, MapColumn::Type, "FLOAT", red);
    expectCell(slot, MapColumn::Name, "Tank1Level", bright);
    slot = continuation();
    slot.typeValid = false;
    expectCell(slot, MapColumn::Type, ":", red);
    expectCell(slot, MapColumn::Name, ":", violet);
}

TEST(MapRow, WriteIsOrangeOrRedAndReadNeitherWay)
{
    RegisterEntry slot = head();
    slot.write = true;
    expectCell(slot, MapColumn::Write, "Write", orange);
    slot.writeValid = false;
    expectCell(slot, MapColumn::Write, "Write", red);
    slot.write = false;
    expectCell(slot, MapColumn::Write, "Read", lime);
}

TEST(MapRow, BadWriteLeavesTheColonsOfAContinuation)
{
    RegisterEntry slot = continuation();
    slot.write = true;
    slot.writeValid = false;
    expectCell(slot, MapColumn::Write, ":", plain);
    expectCell(slot, MapColumn::Marker, "!!", yellow);
}

TEST(MapRow, OrderHasACharacterForEachFlag)
{
    RegisterEntry slot = head();
    slot.SwapBytes = true;
    slot.SwapWords = false;
    slot.SwapLongs = true;
    expectCell(slot, MapColumn::Order, "B-L", plain);
}

TEST(MapRow, TypeCodeOutsideTheFiveHasItsOwnName)
{
    RegisterEntry slot = head();
    slot.type = static_cast<DataType>(5);
    expectCell(slot, MapColumn::Type, "UNKOWN", bright);
}

TEST(MapRow, SizeIsTheWholeCountOfATruncatedObject)
{
    RegisterEntry slot = head();
    slot.registerCount = 2147483647;
    expectCell(slot, MapColumn::Size, "2147483647", plain);
}

TEST(MapRow, RegisterOfANegativeAddressIsAContinuation)
{
    RegisterEntry slot = head();
    slot.startAddress = 4294967294U;
    slot.address = 0;
    expectCell(slot, MapColumn::Address, "00000", bright);
    expectCell(slot, MapColumn::Name, ":", violet);
}

TEST(MapRow, TextsAreShownAsTheyStand)
{
    RegisterEntry slot = head();
    slot.tagname = InternedText("Behälter.1");
    slot.description = InternedText("a, b {c}");
    slot.write = true;
    expectCell(slot, MapColumn::Name, "Behälter.1", bright);
    expectCell(slot, MapColumn::Description, "a, b {c}", plain);
}
