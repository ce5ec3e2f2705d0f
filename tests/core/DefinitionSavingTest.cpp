#include "map/Validation.h"
#include "tests/core/DefinitionFileFixture.h"

namespace
{

using DefinitionSaving = DefinitionFileFixture;

constexpr auto holding = RegisterSpace::Holding;

} // namespace

TEST_F(DefinitionSaving, SavedLineHasItsNineFields)
{
    tags.append(tagOf("Tank1Level", TagType::Numeric, 0));
    load("COIL,7,NONE,INT16,Pump2Run.1,Pump 2 run command,1,LOCKED,OK\n"
         "HOLDING,100,WORDS+BYTES,FLOAT,Tank1Level,Level of tank 1,2,UNLOCKED,ERROR\n");
    validateMap(map, tags);
    EXPECT_EQ(saved(), "COIL,00007,NONE,INT16,Pump2Run.1,Pump 2 run command,1,LOCKED,ERROR" + lineEnd +
                           "HOLDING,00100,BYTES+WORDS,FLOAT,Tank1Level,Level of tank 1,2,UNLOCKED,OK" + lineEnd);
}

TEST_F(DefinitionSaving, SavedStatusIsOkOnlyWithoutAnyMark)
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

TEST_F(DefinitionSaving, SavedOrderNamesTheFlagsThatAreSet)
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

TEST_F(DefinitionSaving, SavedLinesFollowSpacesAndAddresses)
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

TEST_F(DefinitionSaving, OnlyHeadsOfUsedSlotsAreSaved)
{
    load("HOLDING,10,NONE,DOUBLE,D,x\n");
    map.clearSlot(holding, 10);
    map.slots(holding)[20].tagname = InternedText("left behind by a move");
    EXPECT_EQ(usedSlots(map), 3);
    EXPECT_EQ(saved(), "");
}

TEST_F(DefinitionSaving, EmptyMapSavesNoBytes)
{
    EXPECT_EQ(saved(), "");
}

TEST_F(DefinitionSaving, UnknownTypeCodeIsSavedByTheNameForUnknown)
{
    RegisterEntry entry;
    entry.type = static_cast<DataType>(9);
    map.placeObject(holding, 1, entry, 1);
    EXPECT_EQ(saved(), "HOLDING,00001,NONE,UNKOWN,,,1,UNLOCKED,ERROR" + lineEnd);
}

TEST_F(DefinitionSaving, DescriptionWithACommaIsLostOnTheNextStart)
{
    load("HOLDING,1,NONE,INT16,A,plain,1,UNLOCKED,OK\nHOLDING,2,NONE,INT16,B,plain,1,UNLOCKED,OK\n");
    map.slots(holding)[1].description = InternedText("level, in m");
    const std::string text = saved();
    EXPECT_EQ(text, "HOLDING,00001,NONE,INT16,A,level, in m,1,UNLOCKED,ERROR" + lineEnd +
                        "HOLDING,00002,NONE,INT16,B,plain,1,UNLOCKED,ERROR" + lineEnd);
    map.initialise();
    load(text);
    EXPECT_EQ(usedSlots(map), 1);
    EXPECT_TRUE(slot(2).used);
}

TEST_F(DefinitionSaving, DescriptionWithABraceIsSavedWholeAndReadBackCut)
{
    load("HOLDING,1,NONE,INT16,A,plain\n");
    map.slots(holding)[1].description = InternedText("Level {m}");
    const std::string text = saved();
    EXPECT_EQ(text, "HOLDING,00001,NONE,INT16,A,Level {m},1,UNLOCKED,ERROR" + lineEnd);
    map.initialise();
    load(text);
    EXPECT_EQ(slot(1).description.view(), "Level ");
}

TEST_F(DefinitionSaving, NamesAreSavedAsTheyStand)
{
    load("HOLDING,1,NONE,INT16,A,x\n");
    map.slots(holding)[1].tagname = InternedText("a.b,c\nd");
    EXPECT_EQ(saved(), "HOLDING,00001,NONE,INT16,a.b,c\nd,x,1,UNLOCKED,ERROR" + lineEnd);
}

TEST_F(DefinitionSaving, WhatWasSavedIsReadBackEqualAndSavedAlike)
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
    EXPECT_EQ(loadDefinitionFile(folder.write("again.csv", text), again, tags), DefinitionLoad::Whole);
    EXPECT_TRUE(sameSlotsAs(again));
    EXPECT_EQ(definitionText(again), text);
}

TEST_F(DefinitionSaving, RegistersOfANegativeAddressAreNeverSaved)
{
    load("HOLDING,-2,NONE,DOUBLE,Orphan,x,4,UNLOCKED,OK\nHOLDING,5,NONE,INT16,A,x,1,UNLOCKED,OK\n");
    EXPECT_EQ(usedSlots(map), 3);
    const std::string text = saved();
    EXPECT_EQ(text, "HOLDING,00005,NONE,INT16,A,x,1,UNLOCKED,ERROR" + lineEnd);
    map.initialise();
    load(text);
    EXPECT_EQ(usedSlots(map), 1);
}

TEST_F(DefinitionSaving, ReloadedMapThatIsChangedBackIsNotModified)
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

TEST_F(DefinitionSaving, SavingWhereThereIsNoFolderFails)
{
    EXPECT_FALSE(saveDefinitionFile(folder / "missing" / "map.csv", map));
    EXPECT_FALSE(saveDefinitionFile("", map));
}

TEST_F(DefinitionSaving, SavingReplacesTheOldText)
{
    load("HOLDING,1,NONE,INT16,A,x,1,UNLOCKED,OK\n");
    folder.write("saved.csv", std::string(5000, '#'));
    EXPECT_EQ(saved(), "HOLDING,00001,NONE,INT16,A,x,1,UNLOCKED,ERROR" + lineEnd);
}

/// Required: reading clears no byte-order flag, so a line takes those of the slots that it is laid over.
TEST_F(DefinitionSaving, EachSavingHandsAByteOrderOnToTheNextObjectThatLiesOverAnother)
{
    const auto lines = [](const char* second, const char* third)
    {
        return "HOLDING,00008,BYTES,FLOAT,A,x,2,UNLOCKED,ERROR" + lineEnd + "HOLDING,00009," + second +
               ",FLOAT,B,x,2,UNLOCKED,ERROR" + lineEnd + "HOLDING,00010," + third + ",INT16,C,x,1,UNLOCKED,ERROR" +
               lineEnd;
    };
    load(lines("NONE", "NONE"));
    EXPECT_EQ(saved(), lines("BYTES", "NONE"));
    map.initialise();
    load(lines("BYTES", "NONE"));
    EXPECT_EQ(saved(), lines("BYTES", "BYTES"));
}
