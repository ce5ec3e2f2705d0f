#include "map/RegisterMap.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

constexpr auto holding = RegisterSpace::Holding;
constexpr auto coil = RegisterSpace::Coil;

RegisterEntry& at(RegisterMap& map, RegisterSpace space, int address)
{
    return map.slots(space)[address];
}

/// An entry in which no field has the value of a free slot.
RegisterEntry everyFieldSet()
{
    RegisterEntry entry;
    entry.used = true;
    entry.locked = true;
    entry.startAddress = 7;
    entry.address = 8;
    entry.type = DataType::Double;
    entry.typeValid = false;
    entry.registerCount = 4;
    entry.SwapBytes = true;
    entry.SwapWords = true;
    entry.SwapLongs = true;
    entry.write = true;
    entry.writeValid = false;
    entry.tagIndex = 12;
    entry.tagname = InternedText("Tank1Level");
    entry.description = InternedText("Level of tank 1");
    return entry;
}

RegisterEntry doubleNamed(std::string_view name)
{
    RegisterEntry entry;
    entry.type = DataType::Double;
    entry.registerCount = 4;
    entry.tagname = InternedText(name);
    return entry;
}

void expectFree(const RegisterMap& map, RegisterSpace space, int first, int last)
{
    for (int address = first; address <= last; ++address)
        ASSERT_EQ(map.slots(space)[address], freeSlot(address)) << address;
}

} // namespace

TEST(RegisterMap, NewMapIsFreeAndShowsHoldingCompressed)
{
    const RegisterMap map;
    for (const RegisterSpace space : allSpaces)
        expectFree(map, space, 0, lastAddress);
    EXPECT_EQ(map.currentSpace, holding);
    EXPECT_EQ(map.viewMode, ViewMode::Compressed);
    EXPECT_EQ(map.errorCount, 0);
    EXPECT_TRUE(map.clipboard.empty());
    EXPECT_FALSE(map.isModified());
}

TEST(RegisterMap, InitialiseFreesEverythingButKeepsViewModeAndSnapshot)
{
    RegisterMap map;
    for (const RegisterSpace space : allSpaces)
    {
        map.placeObject(space, 0, everyFieldSet(), 4);
        map.placeObject(space, 65535, everyFieldSet(), 4);
    }
    map.takeSnapshot();
    map.currentSpace = coil;
    map.viewMode = ViewMode::All;
    map.errorCount = 3;
    map.clipboard.push_back(everyFieldSet());
    map.initialise();
    for (const RegisterSpace space : allSpaces)
        expectFree(map, space, 0, lastAddress);
    EXPECT_EQ(map.currentSpace, holding);
    EXPECT_EQ(map.viewMode, ViewMode::All);
    EXPECT_EQ(map.errorCount, 0);
    EXPECT_TRUE(map.clipboard.empty());
    EXPECT_TRUE(map.isModified());
}

TEST(RegisterMap, SlotsOfTheCurrentSpaceAreThoseShown)
{
    RegisterMap map;
    for (const RegisterSpace space : allSpaces)
    {
        map.currentSpace = space;
        EXPECT_EQ(&map.currentSlots(), &map.slots(space));
        EXPECT_EQ(&std::as_const(map).currentSlots(), &std::as_const(map).slots(space));
    }
}

TEST(ClearSlot, SetsEveryFieldOfThatSlotAlone)
{
    RegisterMap map;
    for (const int address : {0, 99, 100, 101, 65535})
        at(map, coil, address) = everyFieldSet();
    map.clearSlot(coil, 100);
    EXPECT_EQ(at(map, coil, 100), freeSlot(100));
    EXPECT_EQ(at(map, coil, 99), everyFieldSet());
    EXPECT_EQ(at(map, coil, 101), everyFieldSet());
    map.clearSlot(coil, 0);
    map.clearSlot(coil, 65535);
    EXPECT_EQ(at(map, coil, 0), freeSlot(0));
    EXPECT_EQ(at(map, coil, 65535), freeSlot(65535));
}

TEST(ClearSlot, AddressOutsideTheSpaceDoesNothing)
{
    RegisterMap map;
    at(map, coil, 65535) = everyFieldSet();
    at(map, RegisterSpace::Input, 0) = everyFieldSet();
    map.takeSnapshot();
    map.clearSlot(coil, -1);
    map.clearSlot(coil, 65536);
    map.clearSlot(RegisterSpace::Input, -1);
    EXPECT_FALSE(map.isModified());
}

TEST(ClearSlots, StopAtTheEndOfTheSpace)
{
    RegisterMap map;
    at(map, coil, 65533) = everyFieldSet();
    at(map, coil, 65534) = everyFieldSet();
    at(map, coil, 65535) = everyFieldSet();
    at(map, RegisterSpace::Input, 0) = everyFieldSet();
    clearSlots(map.slots(coil), 65534, std::numeric_limits<std::uint32_t>::max());
    EXPECT_EQ(at(map, coil, 65533), everyFieldSet());
    expectFree(map, coil, 65534, 65535);
    EXPECT_EQ(at(map, RegisterSpace::Input, 0), everyFieldSet());
}

TEST(PlaceObject, EverySlotIsACopyThatKnowsItsPlace)
{
    RegisterMap map;
    map.placeObject(coil, 100, everyFieldSet(), 4);
    for (int address = 100; address < 104; ++address)
    {
        RegisterEntry expected = everyFieldSet();
        expected.startAddress = 100;
        expected.address = static_cast<std::uint32_t>(address);
        EXPECT_EQ(at(map, coil, address), expected);
    }
    expectFree(map, coil, 0, 99);
    expectFree(map, coil, 104, lastAddress);
    expectFree(map, holding, 0, lastAddress);
}

TEST(PlaceObject, MarksTheSlotsUsedThoughTheTemplateIsNot)
{
    RegisterMap map;
    map.placeObject(coil, 3, RegisterEntry(), 1);
    EXPECT_TRUE(at(map, coil, 3).used);
}

TEST(PlaceObject, RegistersBehindTheEndAreDroppedAndTheCountStays)
{
    RegisterMap map;
    map.placeObject(coil, 65534, doubleNamed("D"), 4);
    EXPECT_EQ(at(map, coil, 65534).registerCount, 4U);
    EXPECT_EQ(at(map, coil, 65535).registerCount, 4U);
    EXPECT_EQ(at(map, coil, 65535).startAddress, 65534U);
    expectFree(map, coil, 0, 65533);
    expectFree(map, RegisterSpace::Input, 0, 10);
}

TEST(PlaceObject, HugeCountFillsTheRestOfTheSpace)
{
    RegisterMap map;
    RegisterEntry entry = everyFieldSet();
    entry.registerCount = 2147483647;
    map.placeObject(coil, 1, entry, 2147483647);
    EXPECT_FALSE(at(map, coil, 0).used);
    for (int address = 1; address <= lastAddress; ++address)
        ASSERT_EQ(at(map, coil, address).address, static_cast<std::uint32_t>(address));
    EXPECT_EQ(at(map, coil, 65535).registerCount, 2147483647U);
    expectFree(map, RegisterSpace::Input, 0, 10);
}

TEST(PlaceObject, OverwritesUsedAndLockedSlotsWhole)
{
    RegisterMap map;
    map.placeObject(coil, 10, everyFieldSet(), 4);
    map.placeObject(coil, 11, doubleNamed("new"), 2);
    RegisterEntry expected = doubleNamed("new");
    expected.used = true;
    expected.startAddress = 11;
    expected.address = 12;
    EXPECT_EQ(at(map, coil, 12), expected);
    EXPECT_EQ(at(map, coil, 10).tagname.view(), "Tank1Level");
    EXPECT_EQ(at(map, coil, 13).tagname.view(), "Tank1Level");
}

TEST(PlaceObject, TemplateMayBeASlotThatIsOverwritten)
{
    RegisterMap map;
    map.placeObject(coil, 10, doubleNamed("D"), 4);
    map.placeObject(coil, 8, at(map, coil, 10), 4);
    for (int address = 8; address < 12; ++address)
    {
        EXPECT_EQ(at(map, coil, address).startAddress, 8U);
        EXPECT_EQ(at(map, coil, address).tagname.view(), "D");
    }
}

TEST(PlaceObject, NoRegistersOrNoSuchAddressPlacesNothing)
{
    RegisterMap map;
    map.placeObject(coil, 10, everyFieldSet(), 0);
    map.placeObject(coil, 10, everyFieldSet(), -1);
    map.placeObject(coil, 10, everyFieldSet(), std::numeric_limits<int>::min());
    map.placeObject(coil, -1, everyFieldSet(), 4);
    map.placeObject(coil, 65536, everyFieldSet(), 4);
    EXPECT_FALSE(map.isModified());
}

TEST(EraseObject, HeadTakesItsWholeObjectAlong)
{
    RegisterMap map;
    map.placeObject(holding, 9, everyFieldSet(), 1);
    map.placeObject(holding, 10, doubleNamed("D"), 4);
    map.placeObject(holding, 14, everyFieldSet(), 1);
    EXPECT_TRUE(map.eraseObject(holding, 10));
    expectFree(map, holding, 10, 13);
    EXPECT_TRUE(at(map, holding, 9).used);
    EXPECT_TRUE(at(map, holding, 14).used);
}

TEST(EraseObject, TruncatedObjectFreesItsTwoSlotsAndNothingElse)
{
    RegisterMap map;
    map.placeObject(holding, 65533, everyFieldSet(), 1);
    map.placeObject(holding, 65534, doubleNamed("D"), 4);
    map.placeObject(holding, 0, everyFieldSet(), 1);
    EXPECT_TRUE(map.eraseObject(holding, 65534));
    expectFree(map, holding, 65534, 65535);
    EXPECT_TRUE(at(map, holding, 65533).used);
    EXPECT_TRUE(at(map, holding, 0).used);
}

TEST(EraseObject, ContinuationSlotGoesAlone)
{
    RegisterMap map;
    map.placeObject(holding, 10, doubleNamed("D"), 4);
    EXPECT_TRUE(map.eraseObject(holding, 11));
    EXPECT_EQ(at(map, holding, 11), freeSlot(11));
    for (const int address : {10, 12, 13})
        EXPECT_TRUE(at(map, holding, address).used);
}

TEST(EraseObject, LockedSlotRefusesAndStays)
{
    RegisterMap map;
    map.placeObject(holding, 10, everyFieldSet(), 4);
    map.takeSnapshot();
    EXPECT_FALSE(map.eraseObject(holding, 10));
    EXPECT_FALSE(map.eraseObject(holding, 12));
    EXPECT_FALSE(map.isModified());
}

TEST(EraseObject, FreeSlotIsClearedAsItsOwnHead)
{
    RegisterMap map;
    at(map, holding, 20).description = InternedText("left behind by a move");
    at(map, holding, 21).description = InternedText("neighbour");
    EXPECT_TRUE(map.eraseObject(holding, 20));
    EXPECT_EQ(at(map, holding, 20), freeSlot(20));
    EXPECT_EQ(at(map, holding, 21).description.view(), "neighbour");
}

TEST(EraseObject, LockOfTheGivenAddressAloneCounts)
{
    RegisterMap map;
    map.placeObject(holding, 10, doubleNamed("D"), 4);
    at(map, holding, 12).locked = true;
    EXPECT_TRUE(map.eraseObject(holding, 10));
    expectFree(map, holding, 10, 13);
}

TEST(EraseObject, CountOfTheHeadIsClearedThoughOthersStandThere)
{
    RegisterMap map;
    map.placeObject(holding, 10, doubleNamed("D"), 4);
    map.placeObject(holding, 12, everyFieldSet(), 1);
    EXPECT_TRUE(map.eraseObject(holding, 10));
    expectFree(map, holding, 10, 13);
}

TEST(EraseObject, CurrentSpaceDecidesAndTheGivenSpaceIsCleared)
{
    RegisterMap map;
    map.currentSpace = holding;
    map.placeObject(holding, 10, doubleNamed("shown"), 2);
    at(map, holding, 10).registerCount = 2;
    map.placeObject(coil, 9, doubleNamed("other"), 4);
    EXPECT_TRUE(map.eraseObject(coil, 10));
    EXPECT_TRUE(at(map, coil, 9).used);
    expectFree(map, coil, 10, 11);
    EXPECT_TRUE(at(map, coil, 12).used);
    EXPECT_TRUE(at(map, holding, 10).used);
    EXPECT_TRUE(at(map, holding, 11).used);
}

TEST(EraseObject, FreeSlotOfTheCurrentSpaceClearsOneSlotOfAnotherLockedOrNot)
{
    RegisterMap map;
    map.placeObject(coil, 10, everyFieldSet(), 4);
    EXPECT_TRUE(map.eraseObject(coil, 10));
    EXPECT_EQ(at(map, coil, 10), freeSlot(10));
    EXPECT_TRUE(at(map, coil, 11).used);
}

TEST(EraseObject, ContinuationInTheCurrentSpaceIsClearedThereAndNotInTheGivenSpace)
{
    RegisterMap map;
    map.placeObject(holding, 10, doubleNamed("shown"), 4);
    map.placeObject(coil, 11, doubleNamed("other"), 1);
    EXPECT_TRUE(map.eraseObject(coil, 11));
    EXPECT_TRUE(at(map, coil, 11).used);
    EXPECT_EQ(at(map, holding, 11), freeSlot(11));
}

TEST(EraseObject, LockInTheCurrentSpaceRefusesForAnotherSpace)
{
    RegisterMap map;
    map.placeObject(holding, 10, everyFieldSet(), 1);
    map.placeObject(coil, 10, doubleNamed("other"), 4);
    map.takeSnapshot();
    EXPECT_FALSE(map.eraseObject(coil, 10));
    EXPECT_FALSE(map.isModified());
}

TEST(EraseObject, HugeCountStopsAtTheEndOfTheSpace)
{
    RegisterMap map;
    RegisterEntry entry;
    entry.registerCount = 2147483647;
    map.placeObject(RegisterSpace::Status, 65000, entry, 2147483647);
    map.placeObject(holding, 0, everyFieldSet(), 1);
    map.currentSpace = RegisterSpace::Status;
    EXPECT_TRUE(map.eraseObject(RegisterSpace::Status, 65000));
    expectFree(map, RegisterSpace::Status, 0, lastAddress);
    EXPECT_TRUE(at(map, holding, 0).used);
}

TEST(EraseObject, AddressOutsideTheSpaceErasesNothing)
{
    RegisterMap map;
    map.placeObject(holding, 0, doubleNamed("D"), 4);
    map.takeSnapshot();
    EXPECT_FALSE(map.eraseObject(holding, -1));
    EXPECT_FALSE(map.eraseObject(holding, 65536));
    EXPECT_FALSE(map.isModified());
}
