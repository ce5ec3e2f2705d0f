#include "map/DefinitionFile.h"

#include "files/ReadFile.h"
#include "map/Validation.h"
#include "tests/core/TempFolder.h"
#include "text/Lines.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

constexpr auto holding = RegisterSpace::Holding;
const std::string lineEnd(nativeLineEnd);

class DefinitionFile : public testing::Test
{
protected:
    /// Reads a file of these bytes into the map.
    void load(std::string_view bytes) { EXPECT_TRUE(loadDefinitionFile(folder.write("map.csv", bytes), map, tags)); }

    /// What saving the map writes.
    std::string saved() const
    {
        const std::filesystem::path file = folder / "saved.csv";
        EXPECT_TRUE(saveDefinitionFile(file, map));
        return readFile(file).value_or("no file");
    }

    void addTag(std::string_view name, TagType type, std::uint8_t size, std::int32_t elements = 2)
    {
        TagRecord tag;
        tag.name = InternedText(name);
        tag.type = type;
        tag.size = size;
        tag.elements = elements;
        tags.append(tag);
    }

    const RegisterEntry& slot(int address, RegisterSpace space = holding) const { return map.slots(space)[address]; }

    int usedSlots() const
    {
        int count = 0;
        for (const RegisterSpace space : allSpaces)
        {
            for (const RegisterEntry& entry : map.slots(space))
                count += entry.used ? 1 : 0;
        }
        return count;
    }

    bool sameSlotsAs(const RegisterMap& other) const
    {
        for (const RegisterSpace space : allSpaces)
        {
            if (map.slots(space) != other.slots(space))
                return false;
        }
        return true;
    }

    TempFolder folder;
    TagTable tags;
    RegisterMap map;
};

} // namespace

TEST_F(DefinitionFile, NineFieldsArePlacedAsTheyStand)
{
    load("HOLDING,00100,BYTES+WORDS,FLOAT,Tank1Level,Level of tank 1,2,UNLOCKED,OK\n"
         "COIL,00007,NONE,INT16,Pump2Run.1,Pump 2 run command,1,LOCKED,ERROR\n");
    EXPECT_EQ(slot(100).type, DataType::Float);
    EXPECT_EQ(slot(101).startAddress, 100U);
    EXPECT_EQ(slot(100).tagname.view(), "Tank1Level");
    EXPECT_EQ(slot(100).description.view(), "Level of tank 1");
    EXPECT_FALSE(slot(100).locked);
    EXPECT_TRUE(slot(7, RegisterSpace::Coil).locked);
    EXPECT_TRUE(slot(7, RegisterSpace::Coil).write);
    EXPECT_EQ(usedSlots(), 3);
}

TEST_F(DefinitionFile, SevenFieldsAreUnlocked)
{
    load("HOLDING,10,WORDS,STRING,Name.1,text,5\n");
    EXPECT_EQ(slot(10).registerCount, 5U);
    EXPECT_TRUE(slot(14).used);
    EXPECT_TRUE(slot(10).write);
    EXPECT_FALSE(slot(10).locked);
    EXPECT_EQ(usedSlots(), 5);
}

TEST_F(DefinitionFile, SevenFieldsAtTheEndOfTheSpaceKeepTheirCount)
{
    load("HOLDING,65535,NONE,DOUBLE,X,,4");
    EXPECT_EQ(slot(65535).registerCount, 4U);
    EXPECT_EQ(usedSlots(), 1);
    EXPECT_EQ(saved(), "HOLDING,65535,NONE,DOUBLE,X,,4,UNLOCKED,ERROR" + lineEnd);
}

TEST_F(DefinitionFile, SixFieldsHaveTheCountOfTheirType)
{
    load("HOLDING,0,NONE,INT16,A,a\nHOLDING,10,NONE,INT32,B,b\nHOLDING,20,NONE,FLOAT,C,c\n"
         "HOLDING,30,NONE,DOUBLE,D,d\nHOLDING,40,NONE,BOOL,E,e\n");
    EXPECT_EQ(slot(0).registerCount, 1U);
    EXPECT_EQ(slot(10).registerCount, 2U);
    EXPECT_EQ(slot(20).registerCount, 2U);
    EXPECT_EQ(slot(30).registerCount, 4U);
    EXPECT_EQ(slot(40).registerCount, 1U);
    EXPECT_FALSE(slot(0).locked);
}

TEST_F(DefinitionFile, SixFieldStringIsSizedByTheDatabase)
{
    addTag("Even", TagType::String, 6);
    addTag("Odd", TagType::String, 7);
    addTag("Longest", TagType::String, 255);
    addTag("Number", TagType::Integer, 4);
    load("HOLDING,0,NONE,STRING,Even,x\nHOLDING,10,NONE,STRING,Odd,x\nHOLDING,200,NONE,STRING,Longest,x\n"
         "HOLDING,400,NONE,STRING,Number,x\nHOLDING,500,NONE,STRING,Missing,x\nHOLDING,600,NONE,STRING,even,x\n");
    EXPECT_EQ(slot(0).registerCount, 3U);
    EXPECT_EQ(slot(10).registerCount, 4U);
    EXPECT_EQ(slot(200).registerCount, 128U);
    EXPECT_EQ(slot(400).registerCount, 2U);
    EXPECT_EQ(slot(500).registerCount, 1U);
    EXPECT_EQ(slot(600).registerCount, 1U);
}

TEST_F(DefinitionFile, SixFieldStringOfATagWithoutSizeIsDropped)
{
    addTag("Nothing", TagType::String, 0);
    load("HOLDING,0,NONE,STRING,Nothing,x\n");
    EXPECT_EQ(usedSlots(), 0);
}

TEST_F(DefinitionFile, SixFieldStringIsLookedUpByItsNameUpToTheFirstDot)
{
    addTag("Pump", TagType::String, 10);
    addTag("Pump.1", TagType::String, 40);
    load("HOLDING,0,NONE,STRING,Pump.1,x\nHOLDING,50,NONE,STRING,Pump.1.1,x\n");
    EXPECT_EQ(slot(0).registerCount, 5U);
    EXPECT_EQ(slot(0).tagname.view(), "Pump");
    EXPECT_EQ(slot(50).registerCount, 5U);
    EXPECT_EQ(slot(50).tagname.view(), "Pump.1");
}

TEST_F(DefinitionFile, SixFieldStringTakesTheFirstOfEqualTags)
{
    addTag("Twice", TagType::String, 8);
    addTag("Twice", TagType::String, 20);
    load("HOLDING,0,NONE,STRING,Twice,x\n");
    EXPECT_EQ(slot(0).registerCount, 4U);
}

TEST_F(DefinitionFile, SixFieldStringWithoutNameMeetsNoUnusedTag)
{
    load("HOLDING,0,NONE,STRING,,x\n");
    EXPECT_EQ(slot(0).registerCount, 1U);
    addTag("", TagType::String, 8);
    load("HOLDING,10,NONE,STRING,,x\n");
    EXPECT_EQ(slot(10).registerCount, 4U);
}

TEST_F(DefinitionFile, SevenAndNineFieldStringsAreNotSizedByTheDatabase)
{
    addTag("Name", TagType::String, 20);
    load(
        "HOLDING,0,NONE,STRING,Name,x,3\nHOLDING,10,NONE,STRING,Name,x,0\nHOLDING,20,NONE,STRING,Name,x,x,LOCKED,OK\n");
    EXPECT_EQ(slot(0).registerCount, 3U);
    EXPECT_EQ(usedSlots(), 3);
}

TEST_F(DefinitionFile, LinesOfAnyOtherNumberOfFieldsAreSkipped)
{
    load("\n   \n# a comment\nspace,address,order,type,tagname\nHOLDING\nHOLDING,1,NONE,INT16,A\n"
         "HOLDING,2,NONE,INT16,A,text,1,LOCKED\nHOLDING,3,NONE,INT16,A,a,b,1,UNLOCKED,OK\n"
         "HOLDING,4,NONE,INT16,A,a,1,UNLOCKED,OK,,,,,,,,,,,,\n,,,,,,,,\n"
         "HOLDING,5,NONE,INT16,A,text,1,LOCKED,OK\n");
    EXPECT_EQ(usedSlots(), 1);
    EXPECT_TRUE(slot(5).used);
}

TEST_F(DefinitionFile, OneEmptyFieldBehindAFinalCommaIsNotCounted)
{
    load("HOLDING,1,NONE,INT16,A,text,1,LOCKED,OK,\n"    // nine
         "HOLDING,2,NONE,INT16,A,text,1,\n"              // seven
         "HOLDING,3,NONE,INT16,A,text,\n"                // six
         "HOLDING,4,NONE,INT16,A,\n"                     // five
         "HOLDING,5,NONE,INT16,A,text,1,,\n"             // eight
         "HOLDING,6,NONE,INT16,A,,\n"                    // six
         "HOLDING,7,NONE,INT16,A,text,1,LOCKED,\n"       // eight
         "HOLDING,8,NONE,INT16,A,text,1,LOCKED,OK,,\n"); // ten
    for (const int address : {1, 2, 3, 6})
        EXPECT_TRUE(slot(address).used) << address;
    EXPECT_EQ(usedSlots(), 4);
}

TEST_F(DefinitionFile, EmptyFieldsBetweenCommasCount)
{
    load("HOLDING,,,,,,,,x\nCOIL,5,NONE,INT16,,,1\n");
    EXPECT_TRUE(slot(0).used);
    EXPECT_EQ(slot(0).type, DataType::Int16);
    EXPECT_TRUE(slot(0).tagname.empty());
    EXPECT_TRUE(slot(5, RegisterSpace::Coil).used);
    EXPECT_EQ(usedSlots(), 2);
}

TEST_F(DefinitionFile, FieldsAreNotTrimmedAndQuotesMeanNothing)
{
    load("HOLDING , 1,NONE,INT16,A,x,1,UNLOCKED,OK\n HOLDING,2,NONE,INT16,A,x,1,UNLOCKED,OK\n"
         "\"HOLDING\",3,NONE,INT16,A,x,1,UNLOCKED,OK\nHOLDING,4,NONE,INT16, A B ,\" x \",1,UNLOCKED,OK\n");
    EXPECT_EQ(usedSlots(), 1);
    EXPECT_EQ(slot(4).tagname.view(), " A B ");
    EXPECT_EQ(slot(4).description.view(), "\" x \"");
}

TEST_F(DefinitionFile, MalformedLinesDoNotDisturbTheOthers)
{
    load("HOLDING,1,NONE,INT16,A,,1,UNLOCKED,OK\nholding,2,NONE,INT16,A,,1,UNLOCKED,OK\n"
         "HOLDING,3,NONE,INT16,A.2,,1,UNLOCKED,OK\nHOLDING,4,NONE,STRING,A,,0,UNLOCKED,OK\n"
         "HOLDING,70000,NONE,INT16,A,,1,UNLOCKED,OK\nHOLDING,6,NONE,INT16,A,,1,UNLOCKED,OK\n");
    EXPECT_TRUE(slot(1).used);
    EXPECT_TRUE(slot(6).used);
    EXPECT_EQ(usedSlots(), 2);
}

TEST_F(DefinitionFile, LaterLinesWinButForTheSwapFlags)
{
    load("HOLDING,12,NONE,INT16,Last,,1,UNLOCKED,OK\nHOLDING,10,BYTES,DOUBLE,Old.1,old,4,LOCKED,OK\n"
         "HOLDING,11,WORDS,INT32,New,new,2,UNLOCKED,OK\n");
    EXPECT_EQ(slot(10).tagname.view(), "Old");
    EXPECT_EQ(slot(11).tagname.view(), "New");
    EXPECT_FALSE(slot(11).locked);
    EXPECT_FALSE(slot(11).write);
    EXPECT_EQ(byteOrderCharacters(slot(11)), (std::array{'B', 'W', '-'}));
    EXPECT_EQ(byteOrderCharacters(slot(12)), (std::array{'B', 'W', '-'}));
    EXPECT_EQ(byteOrderCharacters(slot(13)), (std::array{'B', '-', '-'}));
    EXPECT_EQ(slot(13).tagname.view(), "Old");
}

TEST_F(DefinitionFile, ReadingAddsToWhatTheMapHolds)
{
    load("HOLDING,1,LONGS,INT16,A,a,1,UNLOCKED,OK\n");
    load("HOLDING,2,NONE,INT16,B,b,1,UNLOCKED,OK\nHOLDING,1,NONE,INT16,C,c,1,UNLOCKED,OK\n");
    EXPECT_EQ(slot(1).tagname.view(), "C");
    EXPECT_TRUE(slot(1).SwapLongs);
    EXPECT_TRUE(slot(2).used);
}

TEST_F(DefinitionFile, AnyLineEndIsRead)
{
    load("HOLDING,1,NONE,INT16,A,a,1,UNLOCKED,OK\r\nHOLDING,2,NONE,INT16,B,b\rHOLDING,3,NONE,INT16,C,c\n"
         "\r\n\r\nHOLDING,4,NONE,INT16,D,d");
    EXPECT_EQ(usedSlots(), 4);
    EXPECT_EQ(slot(2).description.view(), "b");
    EXPECT_EQ(slot(4).description.view(), "d");
}

TEST_F(DefinitionFile, TextIsUtf8)
{
    load("HOLDING,1,NONE,INT16,Behälter,水位 °C,1,UNLOCKED,OK\n");
    EXPECT_EQ(slot(1).tagname.view(), "Behälter");
    EXPECT_EQ(slot(1).description.view(), "水位 °C");
}

TEST_F(DefinitionFile, ByteOrderMarksAreNoPartOfTheFirstLine)
{
    const std::string line = "HOLDING,1,NONE,INT16,A,\xC3\xA4\n";
    const auto widened = [](std::size_t width, bool bigEndian)
    {
        std::string bytes;
        for (const char32_t unit : std::u32string(U"\uFEFFHOLDING,1,NONE,INT16,A,ä\n"))
        {
            for (std::size_t i = 0; i < width; ++i)
                bytes += static_cast<char>(unit >> 8 * (bigEndian ? width - 1 - i : i) & 0xFF);
        }
        return bytes;
    };
    for (const std::string& bytes :
         {line, "\xEF\xBB\xBF" + line, widened(2, false), widened(2, true), widened(4, false), widened(4, true)})
    {
        map.initialise();
        load(bytes);
        EXPECT_TRUE(slot(1).used);
        EXPECT_EQ(slot(1).description.view(), "ä");
    }
}

TEST_F(DefinitionFile, BytesThatAreNoUtf8AreIso8859)
{
    load("HOLDING,1,NONE,INT16,A,Beh\xE4lter\nHOLDING,2,NONE,INT16,A,\xC3\xA4\n");
    EXPECT_EQ(slot(1).description.view(), "Behälter");
    EXPECT_EQ(slot(2).description.view(), "Ã¤");
}

TEST_F(DefinitionFile, StatusFieldIsNotRead)
{
    addTag("A", TagType::Integer, 0);
    load("HOLDING,1,NONE,INT16,A,x,1,UNLOCKED,ERROR\nHOLDING,2,NONE,INT16,Missing,x,1,UNLOCKED,OK\n");
    validateMap(map, tags);
    EXPECT_EQ(slot(1).tagIndex, 0);
    EXPECT_EQ(slot(2).tagIndex, -1);
    EXPECT_EQ(countErrors(map), 1);
}

TEST_F(DefinitionFile, SavedLineHasItsNineFields)
{
    addTag("Tank1Level", TagType::Numeric, 0);
    load("COIL,7,NONE,INT16,Pump2Run.1,Pump 2 run command,1,LOCKED,OK\n"
         "HOLDING,100,WORDS+BYTES,FLOAT,Tank1Level,Level of tank 1,2,UNLOCKED,ERROR\n");
    validateMap(map, tags);
    EXPECT_EQ(saved(), "COIL,00007,NONE,INT16,Pump2Run.1,Pump 2 run command,1,LOCKED,ERROR" + lineEnd +
                           "HOLDING,00100,BYTES+WORDS,FLOAT,Tank1Level,Level of tank 1,2,UNLOCKED,OK" + lineEnd);
}

TEST_F(DefinitionFile, SavedStatusIsOkOnlyWithoutAnyMark)
{
    const auto status = [&](std::int32_t tagIndex, bool typeValid, bool writeValid)
    {
        RegisterEntry entry;
        entry.tagIndex = tagIndex;
        entry.typeValid = typeValid;
        entry.writeValid = writeValid;
        map.placeObject(holding, 0, entry, 1);
        const std::string line = definitionText(map);
        return line.substr(line.rfind(',') + 1);
    };
    EXPECT_EQ(status(0, true, true), "OK" + lineEnd);
    EXPECT_EQ(status(65535, true, true), "OK" + lineEnd);
    EXPECT_EQ(status(-1, true, true), "ERROR" + lineEnd);
    EXPECT_EQ(status(0, false, true), "ERROR" + lineEnd);
    EXPECT_EQ(status(0, true, false), "ERROR" + lineEnd);
}

TEST_F(DefinitionFile, SavedOrderNamesTheFlagsThatAreSet)
{
    const auto order = [&](bool bytes, bool words, bool longs)
    {
        RegisterEntry entry;
        entry.SwapBytes = bytes;
        entry.SwapWords = words;
        entry.SwapLongs = longs;
        map.placeObject(holding, 0, entry, 1);
        const std::string line = definitionText(map).substr(14);
        return line.substr(0, line.find(','));
    };
    EXPECT_EQ(order(false, false, false), "NONE");
    EXPECT_EQ(order(true, false, false), "BYTES");
    EXPECT_EQ(order(false, true, false), "WORDS");
    EXPECT_EQ(order(false, false, true), "LONGS");
    EXPECT_EQ(order(true, true, false), "BYTES+WORDS");
    EXPECT_EQ(order(true, false, true), "BYTES+LONGS");
    EXPECT_EQ(order(false, true, true), "WORDS+LONGS");
    EXPECT_EQ(order(true, true, true), "BYTES+WORDS+LONGS");
}

TEST_F(DefinitionFile, SavedLinesFollowSpacesAndAddresses)
{
    load("HOLDING,9,NONE,INT16,h9,x\nSTATUS,3,NONE,INT16,s3,x\nHOLDING,2,NONE,INT16,h2,x\nINPUT,8,NONE,INT16,i8,x\n"
         "COIL,65535,NONE,INT16,c,x\nCOIL,0,NONE,INT16,c0,x\n");
    std::string names;
    const std::string text = saved();
    forEachLine(text,
                [&](std::string_view line)
                {
                    names += line.substr(line.find("INT16,") + 6, 2);
                    names += ' ';
                });
    EXPECT_EQ(names, "c0 c, i8 s3 h2 h9 ");
}

TEST_F(DefinitionFile, OnlyHeadsOfUsedSlotsAreSaved)
{
    load("HOLDING,10,NONE,DOUBLE,D,x\n");
    map.clearSlot(holding, 10);
    map.slots(holding)[20].tagname = InternedText("left behind by a move");
    EXPECT_EQ(usedSlots(), 3);
    EXPECT_EQ(saved(), "");
}

TEST_F(DefinitionFile, EmptyMapSavesNoBytes)
{
    EXPECT_EQ(saved(), "");
}

TEST_F(DefinitionFile, UnknownTypeCodeIsSavedByTheNameForUnknown)
{
    RegisterEntry entry;
    entry.type = static_cast<DataType>(9);
    map.placeObject(holding, 1, entry, 1);
    EXPECT_EQ(saved(), "HOLDING,00001,NONE,UNKOWN,,,1,UNLOCKED,ERROR" + lineEnd);
}

TEST_F(DefinitionFile, DescriptionWithACommaIsLostOnTheNextStart)
{
    load("HOLDING,1,NONE,INT16,A,plain,1,UNLOCKED,OK\nHOLDING,2,NONE,INT16,B,plain,1,UNLOCKED,OK\n");
    map.slots(holding)[1].description = InternedText("level, in m");
    const std::string text = saved();
    EXPECT_EQ(text, "HOLDING,00001,NONE,INT16,A,level, in m,1,UNLOCKED,ERROR" + lineEnd +
                        "HOLDING,00002,NONE,INT16,B,plain,1,UNLOCKED,ERROR" + lineEnd);
    map.initialise();
    load(text);
    EXPECT_EQ(usedSlots(), 1);
    EXPECT_TRUE(slot(2).used);
}

TEST_F(DefinitionFile, DescriptionWithABraceIsSavedWholeAndReadBackCut)
{
    load("HOLDING,1,NONE,INT16,A,plain\n");
    map.slots(holding)[1].description = InternedText("Level {m}");
    const std::string text = saved();
    EXPECT_EQ(text, "HOLDING,00001,NONE,INT16,A,Level {m},1,UNLOCKED,ERROR" + lineEnd);
    map.initialise();
    load(text);
    EXPECT_EQ(slot(1).description.view(), "Level ");
}

TEST_F(DefinitionFile, NamesAreSavedAsTheyStand)
{
    load("HOLDING,1,NONE,INT16,A,x\n");
    map.slots(holding)[1].tagname = InternedText("a.b,c\nd");
    EXPECT_EQ(saved(), "HOLDING,00001,NONE,INT16,a.b,c\nd,x,1,UNLOCKED,ERROR" + lineEnd);
}

TEST_F(DefinitionFile, WhatWasSavedIsReadBackEqualAndSavedAlike)
{
    int address = 0;
    for (const RegisterSpace space : allSpaces)
    {
        for (const DataType type : allDataTypes)
        {
            for (int flags = 0; flags < 32; ++flags)
            {
                RegisterEntry entry;
                entry.type = type;
                entry.SwapBytes = (flags & 1) != 0;
                entry.SwapWords = (flags & 2) != 0;
                entry.SwapLongs = (flags & 4) != 0;
                entry.write = (flags & 8) != 0;
                entry.locked = (flags & 16) != 0;
                entry.tagname = InternedText("Behälter" + std::to_string(address));
                entry.description = InternedText(flags % 3 == 0 ? "" : "水位 °C");
                const int count = registerCountFor(typeName(type), "7");
                entry.registerCount = static_cast<std::uint32_t>(count);
                map.placeObject(space, address % 60000, entry, count);
                address += count + flags % 2;
            }
        }
        RegisterEntry last;
        last.type = DataType::String;
        last.registerCount = 2147483647;
        last.tagname = InternedText("cut off");
        map.placeObject(space, 65533, last, 4);
    }
    const std::string text = saved();

    RegisterMap again;
    ASSERT_TRUE(loadDefinitionFile(folder.write("again.csv", text), again, tags));
    EXPECT_TRUE(sameSlotsAs(again));
    EXPECT_EQ(definitionText(again), text);
}

TEST_F(DefinitionFile, RegistersOfANegativeAddressAreNeverSaved)
{
    load("HOLDING,-2,NONE,DOUBLE,Orphan,x,4,UNLOCKED,OK\nHOLDING,5,NONE,INT16,A,x,1,UNLOCKED,OK\n");
    EXPECT_EQ(usedSlots(), 3);
    const std::string text = saved();
    EXPECT_EQ(text, "HOLDING,00005,NONE,INT16,A,x,1,UNLOCKED,ERROR" + lineEnd);
    map.initialise();
    load(text);
    EXPECT_EQ(usedSlots(), 1);
}

TEST_F(DefinitionFile, ReloadedMapThatIsChangedBackIsNotModified)
{
    load("HOLDING,1,NONE,INT16,A,x,1,UNLOCKED,OK\n");
    validateMap(map, tags);
    map.takeSnapshot();
    RegisterEntry& changed = map.slots(holding)[1];
    changed.description = InternedText("y");
    EXPECT_TRUE(map.isModified());
    changed.description = InternedText("x");
    validateMap(map, tags);
    EXPECT_FALSE(map.isModified());
}

TEST_F(DefinitionFile, SavingWhereThereIsNoFolderFails)
{
    EXPECT_FALSE(saveDefinitionFile(folder / "missing" / "map.csv", map));
    EXPECT_FALSE(saveDefinitionFile("", map));
}

TEST_F(DefinitionFile, SavingReplacesTheOldText)
{
    load("HOLDING,1,NONE,INT16,A,x,1,UNLOCKED,OK\n");
    folder.write("saved.csv", std::string(5000, '#'));
    EXPECT_EQ(saved(), "HOLDING,00001,NONE,INT16,A,x,1,UNLOCKED,ERROR" + lineEnd);
}
