#include "map/DefinitionPlacer.h"
#include "tests/core/MapBuilder.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

constexpr auto holding = RegisterSpace::Holding;

/// Places lines that differ from a plain one in the fields named.
class DefinitionLine : public testing::Test
{
protected:
    static DefinitionFields plain()
    {
        return {"HOLDING", "00100", "NONE", "INT16", "Tank1Level", "Level of tank 1", "1", "UNLOCKED", "OK"};
    }

    /// Places a line alone.
    void parse(const DefinitionFields& fields)
    {
        DefinitionPlacer placer(map);
        placer.parseDefinitionLine(fields);
        placer.placeAll();
    }

    const RegisterEntry& place(const DefinitionFields& fields, int address = 100)
    {
        parse(fields);
        return slot(address);
    }

    RegisterEntry& slot(int address, RegisterSpace space = holding) { return map.slots(space)[address]; }

    RegisterMap map;
};

} // namespace

TEST_F(DefinitionLine, FillsEverySlotOfItsObject)
{
    place({"HOLDING", "00100", "BYTES+WORDS", "FLOAT", "Tank1Level", "Level of tank 1", "2", "UNLOCKED", "OK"});
    RegisterEntry expected = freeSlot(100);
    expected.used = true;
    expected.type = DataType::Float;
    expected.registerCount = 2;
    expected.SwapBytes = true;
    expected.SwapWords = true;
    expected.tagname = InternedText("Tank1Level");
    expected.description = InternedText("Level of tank 1");
    EXPECT_EQ(slot(100), expected);
    expected.address = 101;
    EXPECT_EQ(slot(101), expected);
    EXPECT_EQ(usedSlots(map), 2);
}

TEST_F(DefinitionLine, LockedWritableCoilIsRead)
{
    place({"COIL", "00007", "NONE", "INT16", "Pump2Run.1", "Pump 2 run command", "1", "LOCKED", "ERROR"});
    const RegisterEntry& coil = slot(7, RegisterSpace::Coil);
    EXPECT_TRUE(coil.used);
    EXPECT_TRUE(coil.locked);
    EXPECT_TRUE(coil.write);
    EXPECT_EQ(coil.tagname.view(), "Pump2Run");
    EXPECT_EQ(usedSlots(map), 1);
}

TEST_F(DefinitionLine, EachKeywordLeadsToItsSpaceWhateverTheType)
{
    for (const RegisterSpace space : allSpaces)
    {
        DefinitionFields fields = plain();
        fields.space = spaceKeyword(space);
        fields.type = "DOUBLE";
        parse(fields);
        EXPECT_EQ(slot(100, space).type, DataType::Double);
        EXPECT_TRUE(slot(103, space).used);
    }
    EXPECT_EQ(usedSlots(map), 16);
}

TEST_F(DefinitionLine, SpaceKeywordIsComparedExactly)
{
    for (const char* keyword : {"holding", "Holding", " HOLDING", "HOLDING ", "HOLDINGS", "", "Unkown"})
    {
        DefinitionFields fields = plain();
        fields.space = keyword;
        parse(fields);
    }
    EXPECT_EQ(usedSlots(map), 0);
}

TEST_F(DefinitionLine, AddressIsADecimalNumberFromItsLeadingDigits)
{
    for (const auto& [text, address] : {std::pair("00010", 10), std::pair("  +20x", 20), std::pair("30.9", 30),
                                        std::pair("", 0), std::pair("0x40", 0), std::pair("65535", 65535)})
    {
        map.initialise();
        DefinitionFields fields = plain();
        fields.address = text;
        EXPECT_TRUE(place(fields, address).used) << text;
        EXPECT_EQ(slot(address).startAddress, static_cast<std::uint32_t>(address)) << text;
        EXPECT_EQ(usedSlots(map), 1) << text;
    }
}

TEST_F(DefinitionLine, OrderNamesCountAnywhereInTheField)
{
    const auto order = [&](std::string_view text)
    {
        map.initialise();
        DefinitionFields fields = plain();
        fields.order = text;
        const auto characters = byteOrderCharacters(place(fields));
        return std::string(characters.begin(), characters.end());
    };
    EXPECT_EQ(order("NONE"), "---");
    EXPECT_EQ(order(""), "---");
    EXPECT_EQ(order("BYTES"), "B--");
    EXPECT_EQ(order("WORDS"), "-W-");
    EXPECT_EQ(order("LONGS"), "--L");
    EXPECT_EQ(order("BYTES+WORDS"), "BW-");
    EXPECT_EQ(order("WORDS+BYTES"), "BW-");
    EXPECT_EQ(order("xBYTESx"), "B--");
    EXPECT_EQ(order("LONGSWORDSBYTES"), "BWL");
    EXPECT_EQ(order("NONE BYTES"), "B--");
    EXPECT_EQ(order("bytes+Words"), "---");
    EXPECT_EQ(order("BYTE+WORD+LONG"), "---");
}

TEST_F(DefinitionLine, Int16KeepsAllThreeFlags)
{
    DefinitionFields fields = plain();
    fields.order = "BYTES+WORDS+LONGS";
    const RegisterEntry& entry = place(fields);
    EXPECT_EQ(entry.type, DataType::Int16);
    EXPECT_TRUE(entry.SwapBytes && entry.SwapWords && entry.SwapLongs);
}

TEST_F(DefinitionLine, FixedTypesHaveTheirCountWhateverTheFieldSays)
{
    for (const auto& [type, count] :
         {std::pair("INT16", 1U), std::pair("INT32", 2U), std::pair("FLOAT", 2U), std::pair("DOUBLE", 4U)})
    {
        for (const char* countText : {"9", "0", "-1", "", "x"})
        {
            map.initialise();
            DefinitionFields fields = plain();
            fields.type = type;
            fields.count = countText;
            EXPECT_EQ(place(fields).registerCount, count) << type;
            EXPECT_EQ(typeName(slot(100).type), type);
            EXPECT_EQ(usedSlots(map), static_cast<int>(count)) << type;
        }
    }
}

TEST_F(DefinitionLine, UnknownTypeIsAnInt16OfOneRegister)
{
    for (const char* type : {"BOOL", "int32", "float", " DOUBLE", "string", "UNKOWN", ""})
    {
        map.initialise();
        DefinitionFields fields = plain();
        fields.type = type;
        fields.count = "5";
        EXPECT_EQ(place(fields).type, DataType::Int16) << type;
        EXPECT_EQ(slot(100).registerCount, 1U) << type;
        EXPECT_EQ(usedSlots(map), 1) << type;
    }
}

TEST_F(DefinitionLine, StringTakesTheCountOfItsField)
{
    DefinitionFields fields = plain();
    fields.type = "STRING";
    fields.count = " 3x";
    EXPECT_EQ(place(fields).registerCount, 3U);
    EXPECT_EQ(usedSlots(map), 3);
}

TEST_F(DefinitionLine, StringOfNoRegistersIsDropped)
{
    for (const char* count : {"0", "-3", "", "many", "-2147483648"})
    {
        DefinitionFields fields = plain();
        fields.type = "STRING";
        fields.count = count;
        parse(fields);
    }
    EXPECT_EQ(usedSlots(map), 0);
}

TEST_F(DefinitionLine, WritePermissionTravelsBehindTheTagname)
{
    const auto read = [&](std::string_view tagname)
    {
        map.initialise();
        DefinitionFields fields = plain();
        fields.tagname = tagname;
        const RegisterEntry& entry = place(fields);
        return std::pair(std::string(entry.tagname.view()), entry.write);
    };
    EXPECT_EQ(read("Pump"), std::pair(std::string("Pump"), false));
    EXPECT_EQ(read("Pump.1"), std::pair(std::string("Pump"), true));
    EXPECT_EQ(read("Pump.1.1"), std::pair(std::string("Pump.1"), true));
    EXPECT_EQ(read("Pump.2.1"), std::pair(std::string("Pump.2"), true));
    EXPECT_EQ(read("1"), std::pair(std::string("1"), false));
    EXPECT_EQ(read(".1"), std::pair(std::string(), true));
    EXPECT_EQ(read(" Pump "), std::pair(std::string(" Pump "), false));
    EXPECT_EQ(read(""), std::pair(std::string(), false));
    EXPECT_TRUE(slot(100).used);
}

TEST_F(DefinitionLine, TagnameWithAnyOtherDotIsDropped)
{
    for (const char* tagname : {"Pump.2", "Pump.", ".", "Pump.1x", "Pump.1 ", "Pump.11", ".1.2"})
    {
        DefinitionFields fields = plain();
        fields.tagname = tagname;
        parse(fields);
        EXPECT_EQ(usedSlots(map), 0) << tagname;
    }
}

TEST_F(DefinitionLine, DescriptionEndsBeforeItsFirstBrace)
{
    const auto read = [&](std::string_view description)
    {
        map.initialise();
        DefinitionFields fields = plain();
        fields.description = description;
        return std::string(place(fields).description.view());
    };
    EXPECT_EQ(read("Level {m} {x}"), "Level ");
    EXPECT_EQ(read("{m}"), "");
    EXPECT_EQ(read("Level m}"), "Level m}");
    EXPECT_EQ(read("  both ends "), "  both ends ");
    EXPECT_EQ(read(""), "");
}

TEST_F(DefinitionLine, LockFieldCountsByItsBeginning)
{
    const auto locked = [&](std::string_view lock)
    {
        map.initialise();
        DefinitionFields fields = plain();
        fields.lock = lock;
        return place(fields).locked;
    };
    EXPECT_TRUE(locked("LOCKED"));
    EXPECT_TRUE(locked("LOCKED by hand"));
    EXPECT_FALSE(locked("UNLOCKED"));
    EXPECT_FALSE(locked(" LOCKED"));
    EXPECT_FALSE(locked("locked"));
    EXPECT_FALSE(locked("LOCKE"));
    EXPECT_FALSE(locked(""));
}

TEST_F(DefinitionLine, StatusAndDerivedFieldsAreLeftAlone)
{
    slot(100).typeValid = false;
    slot(100).writeValid = false;
    slot(100).tagIndex = 42;
    DefinitionFields fields = plain();
    fields.status = "ERROR";
    const RegisterEntry& entry = place(fields);
    EXPECT_TRUE(entry.used);
    EXPECT_FALSE(entry.typeValid);
    EXPECT_FALSE(entry.writeValid);
    EXPECT_EQ(entry.tagIndex, 42);
}

TEST_F(DefinitionLine, LaterLineOverwritesLockedSlotsToo)
{
    place({"HOLDING", "100", "NONE", "DOUBLE", "Old.1", "old", "4", "LOCKED", "OK"});
    place({"HOLDING", "101", "NONE", "INT32", "New", "new", "2", "UNLOCKED", "OK"});
    EXPECT_EQ(slot(100).tagname.view(), "Old");
    for (const int address : {101, 102})
    {
        RegisterEntry expected = freeSlot(address);
        expected.used = true;
        expected.startAddress = 101;
        expected.type = DataType::Int32;
        expected.registerCount = 2;
        expected.tagname = InternedText("New");
        expected.description = InternedText("new");
        EXPECT_EQ(slot(address), expected);
    }
    EXPECT_EQ(slot(103).tagname.view(), "Old");
    EXPECT_EQ(slot(103).startAddress, 100U);
    EXPECT_TRUE(slot(103).locked);
}

TEST_F(DefinitionLine, SwapFlagsThatALaterLineDoesNotNameStick)
{
    place({"HOLDING", "100", "BYTES", "DOUBLE", "Old", "", "4", "UNLOCKED", "OK"});
    place({"HOLDING", "101", "WORDS", "INT32", "New", "", "2", "UNLOCKED", "OK"});
    place({"HOLDING", "102", "NONE", "INT16", "Last", "", "1", "UNLOCKED", "OK"});
    EXPECT_EQ(byteOrderCharacters(slot(100)), (std::array{'B', '-', '-'}));
    EXPECT_EQ(byteOrderCharacters(slot(101)), (std::array{'B', 'W', '-'}));
    EXPECT_EQ(byteOrderCharacters(slot(102)), (std::array{'B', 'W', '-'}));
    EXPECT_EQ(byteOrderCharacters(slot(103)), (std::array{'B', '-', '-'}));
    EXPECT_EQ(slot(102).tagname.view(), "Last");
}

TEST_F(DefinitionLine, ObjectIsCutOffAtTheEndOfTheSpace)
{
    place({"COIL", "65535", "NONE", "DOUBLE", "X", "", "4", "UNLOCKED", "OK"});
    EXPECT_EQ(slot(65535, RegisterSpace::Coil).registerCount, 4U);
    EXPECT_FALSE(slot(0, RegisterSpace::Input).used);
    EXPECT_EQ(usedSlots(map), 1);
}

TEST_F(DefinitionLine, AddressBehindTheSpaceLeavesNothing)
{
    for (const char* address : {"65536", "65537", "131072", "2147483647", "2147483648", "4294967296", "4294967396"})
    {
        DefinitionFields fields = plain();
        fields.address = address;
        fields.type = "STRING";
        fields.count = "2147483647";
        parse(fields);
        EXPECT_EQ(usedSlots(map), 0) << address;
    }
}

TEST_F(DefinitionLine, NegativeAddressLeavesTheRegistersThatReachTheSpace)
{
    place({"HOLDING", "-2", "NONE", "DOUBLE", "X", "", "4", "UNLOCKED", "OK"});
    EXPECT_EQ(usedSlots(map), 2);
    for (const int address : {0, 1})
    {
        EXPECT_EQ(slot(address).startAddress, 4294967294U);
        EXPECT_EQ(slot(address).address, static_cast<std::uint32_t>(address));
        EXPECT_EQ(slot(address).registerCount, 4U);
        EXPECT_FALSE(isHead(slot(address)));
    }
}

TEST_F(DefinitionLine, NegativeAddressThatReachesNothingLeavesNothing)
{
    for (const char* address : {"-4", "-5", "-65536", "-2147483648", "-99999999999"})
    {
        DefinitionFields fields = plain();
        fields.address = address;
        fields.type = "DOUBLE";
        parse(fields);
    }
    DefinitionFields longest = plain();
    longest.address = "-2147483648";
    longest.type = "STRING";
    longest.count = "2147483647";
    parse(longest);
    EXPECT_EQ(usedSlots(map), 0);
}

TEST_F(DefinitionLine, LongestObjectFillsTheSpaceFromAnywhere)
{
    for (const auto& [address, used] :
         {std::pair("0", 65536), std::pair("1", 65535), std::pair("65535", 1), std::pair("-1", 65536),
          std::pair("-2147418111", 65536), std::pair("-2147418112", 65535), std::pair("-2147483646", 1)})
    {
        map.initialise();
        DefinitionFields fields = plain();
        fields.address = address;
        fields.type = "STRING";
        fields.count = "2147483647";
        parse(fields);
        EXPECT_EQ(usedSlots(map), used) << address;
    }
}

TEST_F(DefinitionLine, CountsBeyond32BitsSaturate)
{
    DefinitionFields fields = plain();
    fields.type = "STRING";
    fields.count = "99999999999999999999";
    EXPECT_EQ(place(fields).registerCount, 2147483647U);
}
