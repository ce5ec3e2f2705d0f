#include "map/Validation.h"

#include "tests/core/TagBuilder.h"

#include <gtest/gtest.h>

namespace
{

class Validation : public testing::Test
{
protected:
    static RegisterEntry entry(std::string_view tagname, DataType type, std::uint32_t count = 1)
    {
        RegisterEntry result;
        result.tagname = InternedText(tagname);
        result.type = type;
        result.registerCount = count;
        return result;
    }

    /// The head of an object after validating the map with it alone.
    const RegisterEntry& validated(const RegisterEntry& object, RegisterSpace space = RegisterSpace::Holding)
    {
        map.initialise();
        map.placeObject(space, 0, object, static_cast<int>(object.registerCount));
        validateMap(map, tags);
        return map.slots(space)[0];
    }

    TagTable tags;
    RegisterMap map;
};

} // namespace

TEST_F(Validation, TagIsFoundByItsExactName)
{
    tags.append(tagOf("Other", TagType::Integer));
    tags.append(tagOf("Tank1Level", TagType::Integer));
    EXPECT_EQ(validated(entry("Tank1Level", DataType::Int16)).tagIndex, 1);
    for (const char* name : {"tank1level", "Tank1Leve", "Tank1Level ", "Tank1Level.1"})
        EXPECT_EQ(validated(entry(name, DataType::Int16)).tagIndex, -1) << name;
}

TEST_F(Validation, FirstOfEqualTagsIsTaken)
{
    tags.append(tagOf("Other", TagType::Integer));
    tags.append(tagOf("Twice", TagType::String, 2));
    tags.append(tagOf("Twice", TagType::Integer));
    EXPECT_EQ(validated(entry("Twice", DataType::String)).tagIndex, 1);
    EXPECT_TRUE(map.slots(RegisterSpace::Holding)[0].typeValid);
}

TEST_F(Validation, LastTagOfAFullTableIsFound)
{
    for (int i = 0; i < tagCapacity; ++i)
        tags.append(tagOf("T" + std::to_string(i), TagType::Integer));
    EXPECT_EQ(validated(entry("T65535", DataType::Int16)).tagIndex, 65535);
}

TEST_F(Validation, UnknownTagLeavesTypeAndWriteValid)
{
    RegisterEntry unknown = entry("Missing", DataType::String);
    unknown.write = true;
    unknown.typeValid = false;
    unknown.writeValid = false;
    unknown.tagIndex = 7;
    const RegisterEntry& slot = validated(unknown);
    EXPECT_EQ(slot.tagIndex, -1);
    EXPECT_TRUE(slot.typeValid);
    EXPECT_TRUE(slot.writeValid);
}

TEST_F(Validation, MarksOfTheLastTimeAreForgotten)
{
    tags.append(tagOf("Tank1Level", TagType::Integer, 0, 2));
    RegisterEntry object = entry("Tank1Level", DataType::Int16);
    object.write = true;
    object.typeValid = false;
    object.writeValid = false;
    const RegisterEntry& slot = validated(object);
    EXPECT_EQ(slot.tagIndex, 0);
    EXPECT_TRUE(slot.typeValid);
    EXPECT_TRUE(slot.writeValid);
}

TEST_F(Validation, StringTagNeedsAStringLongEnough)
{
    tags.append(tagOf("Six", TagType::String, 6));
    tags.append(tagOf("Seven", TagType::String, 7));
    tags.append(tagOf("Nothing", TagType::String, 0));
    tags.append(tagOf("Longest", TagType::String, 255));
    EXPECT_TRUE(validated(entry("Six", DataType::String, 3)).typeValid);
    EXPECT_TRUE(validated(entry("Six", DataType::String, 4)).typeValid);
    EXPECT_FALSE(validated(entry("Six", DataType::String, 2)).typeValid);
    EXPECT_FALSE(validated(entry("Seven", DataType::String, 3)).typeValid);
    EXPECT_TRUE(validated(entry("Seven", DataType::String, 4)).typeValid);
    EXPECT_TRUE(validated(entry("Nothing", DataType::String, 1)).typeValid);
    EXPECT_FALSE(validated(entry("Longest", DataType::String, 127)).typeValid);
    EXPECT_TRUE(validated(entry("Longest", DataType::String, 128)).typeValid);
}

TEST_F(Validation, LongestStringIsLongEnough)
{
    tags.append(tagOf("Longest", TagType::String, 255));
    EXPECT_TRUE(validated(entry("Longest", DataType::String, 2147483647)).typeValid);
}

TEST_F(Validation, StringTagIsNoNumber)
{
    tags.append(tagOf("Name", TagType::String, 1));
    for (const DataType type : {DataType::Int16, DataType::Int32, DataType::Float, DataType::Double})
        EXPECT_FALSE(validated(entry("Name", type, 4)).typeValid) << typeName(type);
    EXPECT_FALSE(validated(entry("Name", static_cast<DataType>(5), 4)).typeValid);
}

TEST_F(Validation, AnyNumberSuitsANumericTag)
{
    tags.append(tagOf("Whole", TagType::Integer, 200));
    tags.append(tagOf("Real", TagType::Numeric, 200));
    for (const char* name : {"Whole", "Real"})
    {
        for (const DataType type : {DataType::Int16, DataType::Int32, DataType::Float, DataType::Double})
            EXPECT_TRUE(validated(entry(name, type)).typeValid) << name << ' ' << typeName(type);
        EXPECT_FALSE(validated(entry(name, DataType::String, 200)).typeValid) << name;
        EXPECT_FALSE(validated(entry(name, static_cast<DataType>(5))).typeValid) << name;
    }
}

TEST_F(Validation, AnyTypeSuitsATagOfUnknownType)
{
    tags.append(tagOf("Odd", static_cast<TagType>(3), 200));
    for (const DataType type : allDataTypes)
        EXPECT_TRUE(validated(entry("Odd", type)).typeValid) << typeName(type);
}

TEST_F(Validation, WriteNeedsTwoElements)
{
    tags.append(tagOf("None", TagType::Integer, 0, 0));
    tags.append(tagOf("One", TagType::Integer, 0, 1));
    tags.append(tagOf("Two", TagType::Integer, 0, 2));
    tags.append(tagOf("Negative", TagType::Integer, 0, -2147483647));
    for (const auto& [name, valid] :
         {std::pair("None", false), std::pair("One", false), std::pair("Two", true), std::pair("Negative", false)})
    {
        RegisterEntry object = entry(name, DataType::Int16);
        EXPECT_TRUE(validated(object).writeValid) << name;
        object.write = true;
        EXPECT_EQ(validated(object).writeValid, valid) << name;
        EXPECT_TRUE(validated(object).typeValid) << name;
    }
}

TEST_F(Validation, BadTypeAndBadWriteAreIndependent)
{
    tags.append(tagOf("Name", TagType::String, 2, 1));
    RegisterEntry object = entry("Name", DataType::Int16);
    object.write = true;
    const RegisterEntry& slot = validated(object);
    EXPECT_FALSE(slot.typeValid);
    EXPECT_FALSE(slot.writeValid);
}

TEST_F(Validation, EmptyTagnameMeetsTheFirstUnusedRecord)
{
    tags.append(tagOf("A", TagType::String, 2));
    tags.append(tagOf("B", TagType::String, 2));
    EXPECT_EQ(validated(entry("", DataType::Int16)).tagIndex, 2);
    EXPECT_TRUE(map.slots(RegisterSpace::Holding)[0].typeValid);
    EXPECT_FALSE(validated(entry("", DataType::String)).typeValid);
    RegisterEntry written = entry("", DataType::Int16);
    written.write = true;
    EXPECT_FALSE(validated(written).writeValid);
}

TEST_F(Validation, EmptyTagnameMeetsATagOfThatName)
{
    tags.append(tagOf("A", TagType::Integer));
    tags.append(tagOf("", TagType::String, 2));
    tags.append(tagOf("B", TagType::Integer));
    EXPECT_EQ(validated(entry("", DataType::String)).tagIndex, 1);
    EXPECT_TRUE(map.slots(RegisterSpace::Holding)[0].typeValid);
}

TEST_F(Validation, EmptyTagnameMeetsNothingInAFullTable)
{
    for (int i = 0; i < tagCapacity; ++i)
        tags.append(tagOf("T" + std::to_string(i), TagType::Integer));
    EXPECT_EQ(validated(entry("", DataType::Int16)).tagIndex, -1);
}

TEST_F(Validation, EverySlotOfEverySpaceIsLookedAt)
{
    tags.append(tagOf("A", TagType::Integer));
    for (const RegisterSpace space : allSpaces)
    {
        map.placeObject(space, 0, entry("A", DataType::Double, 4), 4);
        map.placeObject(space, 65534, entry("A", DataType::Double, 4), 4);
    }
    validateMap(map, tags);
    for (const RegisterSpace space : allSpaces)
    {
        for (const int address : {0, 3, 65'534, 65'535})
            EXPECT_EQ(map.slots(space)[address].tagIndex, 0);
    }
    EXPECT_EQ(countErrors(map), 0);
}

TEST_F(Validation, NeighboursOfOtherNamesGetTheirOwnTags)
{
    tags.append(tagOf("A", TagType::Integer));
    tags.append(tagOf("B", TagType::Integer));
    RegisterSlots& slots = map.slots(RegisterSpace::Coil);
    for (const auto& [address, name] : {std::pair(0, "A"), std::pair(1, "B"), std::pair(2, "C"), std::pair(3, "A"),
                                        std::pair(4, ""), std::pair(5, "A")})
        map.placeObject(RegisterSpace::Coil, address, entry(name, DataType::Int16), 1);
    validateMap(map, tags);
    EXPECT_EQ(slots[0].tagIndex, 0);
    EXPECT_EQ(slots[1].tagIndex, 1);
    EXPECT_EQ(slots[2].tagIndex, -1);
    EXPECT_EQ(slots[3].tagIndex, 0);
    EXPECT_EQ(slots[4].tagIndex, 2);
    EXPECT_EQ(slots[5].tagIndex, 0);
}

TEST_F(Validation, OnlyTheThreeDerivedFieldsChange)
{
    tags.append(tagOf("Name", TagType::String, 2, 1));
    RegisterEntry object = entry("Name", DataType::Int16, 3);
    object.locked = true;
    object.write = true;
    object.SwapLongs = true;
    object.description = InternedText("text");
    map.placeObject(RegisterSpace::Status, 65534, object, 3);
    const RegisterEntry before = map.slots(RegisterSpace::Status)[65535];
    validateMap(map, tags);
    RegisterEntry expected = before;
    expected.tagIndex = 0;
    expected.typeValid = false;
    expected.writeValid = false;
    EXPECT_EQ(map.slots(RegisterSpace::Status)[65535], expected);
}

TEST_F(Validation, FreeSlotsAreLeftAlone)
{
    tags.append(tagOf("A", TagType::Integer));
    RegisterEntry& slot = map.slots(RegisterSpace::Holding)[5];
    slot.tagname = InternedText("A");
    slot.typeValid = false;
    slot.writeValid = false;
    slot.tagIndex = 9;
    const RegisterEntry before = slot;
    validateMap(map, tags);
    EXPECT_EQ(slot, before);
    EXPECT_EQ(countErrors(map), 0);
}

TEST_F(Validation, TruncatedAndOverlappingObjectsAreNoErrors)
{
    tags.append(tagOf("A", TagType::Integer));
    tags.append(tagOf("S", TagType::String, 10));
    map.placeObject(RegisterSpace::Coil, 65535, entry("S", DataType::String, 5), 5);
    map.placeObject(RegisterSpace::Holding, 10, entry("A", DataType::Double, 4), 4);
    map.placeObject(RegisterSpace::Holding, 12, entry("A", DataType::Double, 4), 4);
    validateMap(map, tags);
    EXPECT_EQ(countErrors(map), 0);
}

TEST_F(Validation, ErrorsAreCountedPerRegisterAndMark)
{
    tags.append(tagOf("Name", TagType::String, 2, 1));
    EXPECT_EQ(countErrors(map), 0);
    map.placeObject(RegisterSpace::Coil, 0, entry("Missing", DataType::Int32, 2), 2);
    validateMap(map, tags);
    EXPECT_EQ(countErrors(map), 2);
    RegisterEntry bad = entry("Name", DataType::Double, 4);
    bad.write = true;
    map.placeObject(RegisterSpace::Holding, 65534, bad, 4);
    validateMap(map, tags);
    EXPECT_EQ(countErrors(map), 2 + 2 * 2);
}

TEST_F(Validation, CountingLooksAtTheMarksAsTheyStand)
{
    map.placeObject(RegisterSpace::Input, 0, entry("Missing", DataType::Int16), 1);
    validateMap(map, tags);
    tags.append(tagOf("Missing", TagType::Integer));
    EXPECT_EQ(countErrors(map), 1);
    map.slots(RegisterSpace::Input)[0].tagname = InternedText("Other");
    EXPECT_EQ(countErrors(map), 1);
    map.clearSlot(RegisterSpace::Input, 0);
    EXPECT_EQ(countErrors(map), 0);
}
