#include "files/ReadFile.h"
#include "map/DefinitionFile.h"
#include "tests/core/Chance.h"
#include "tests/core/TempFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace
{

/// Reads files that nobody wrote for this program and checks that the map is still one afterwards.
class DefinitionFileAbuse : public testing::Test
{
protected:
    void load(std::string_view bytes) { loadFile(folder.write("map.csv", bytes)); }

    void loadFile(const std::filesystem::path& file)
    {
        EXPECT_TRUE(isLoaded(loadDefinitionFile(file, map, tags)));
        for (const RegisterSpace space : allSpaces)
        {
            for (int address = 0; address < registersPerSpace; ++address)
                ASSERT_EQ(map.slots(space)[address].address, static_cast<std::uint32_t>(address));
        }
    }

    void expectEmpty()
    {
        RegisterMap empty;
        for (const RegisterSpace space : allSpaces)
            EXPECT_TRUE(map.slots(space) == empty.slots(space));
    }

    const RegisterEntry& slot(int address, RegisterSpace space = RegisterSpace::Holding) const
    {
        return map.slots(space)[address];
    }

    TempFolder folder;
    TagTable tags;
    RegisterMap map;
};

} // namespace

TEST_F(DefinitionFileAbuse, MissingFileLeavesTheMap)
{
    EXPECT_FALSE(isLoaded(loadDefinitionFile(folder / "missing.csv", map, tags)));
    EXPECT_FALSE(isLoaded(loadDefinitionFile("", map, tags)));
    expectEmpty();
}

TEST_F(DefinitionFileAbuse, FolderLeavesTheMap)
{
    EXPECT_FALSE(isLoaded(loadDefinitionFile(folder.path(), map, tags)));
    expectEmpty();
}

TEST_F(DefinitionFileAbuse, FileThatCannotBeOpenedLeavesTheMap)
{
    EXPECT_FALSE(isLoaded(loadDefinitionFile(folder.write("file", "HOLDING,1,NONE,INT16,A,x\n") / "below", map, tags)));
    expectEmpty();
}

TEST_F(DefinitionFileAbuse, EmptyFileIsAnEmptyMap)
{
    load("");
    expectEmpty();
}

TEST_F(DefinitionFileAbuse, ZerosHoldNoLines)
{
    load(std::string(5'000'000, '\0'));
    expectEmpty();
}

TEST_F(DefinitionFileAbuse, ZerosInsideFieldsAreKept)
{
    load(std::string("HOLDING,1,NONE,INT16,A\0B,x\0y\nHOLDING\0,2,NONE,INT16,A,x\n", 55));
    EXPECT_EQ(slot(1).tagname.view(), std::string_view("A\0B", 3));
    EXPECT_EQ(slot(1).description.view(), std::string_view("x\0y", 3));
    EXPECT_FALSE(slot(2).used);
}

TEST_F(DefinitionFileAbuse, TwoHundredMegabytesOfGarbageHoldNoLines)
{
    Chance chance(1);
    std::string block(1'000'000, '\0');
    for (char& byte : block)
        byte = static_cast<char>(chance.pick(0, 255));
    const std::filesystem::path file = folder / "garbage.csv";
    std::ofstream stream(file, std::ios::binary);
    for (int i = 0; i < 200; ++i)
        stream << block;
    stream.close();
    loadFile(file);
    expectEmpty();
}

TEST_F(DefinitionFileAbuse, MillionsOfEmptyLinesAndCommasAreSkipped)
{
    load(std::string(5'000'000, '\n') + std::string(5'000'000, ',') + "\nHOLDING,1,NONE,INT16,A,x\n");
    EXPECT_TRUE(slot(1).used);
}

TEST_F(DefinitionFileAbuse, LinesOfTenMegabytesAreRead)
{
    const std::string longText(10'000'000, 'x');
    load("HOLDING,1,NONE,STRING," + longText + ".1," + longText + ",65535\n" + longText + "\n" + longText +
         ",1,NONE,INT16,A,x\nHOLDING," + std::string(10'000'000, '0') + "5,NONE,INT16,A,x\n");
    EXPECT_EQ(slot(1).tagname.view(), longText);
    EXPECT_EQ(slot(65535).description.view(), longText);
    EXPECT_EQ(slot(5).tagname.view(), "A");
}

TEST_F(DefinitionFileAbuse, FieldsFullOfSignsAndFragmentsAreHarmless)
{
    const std::vector<std::string> fields = {"",           "HOLDING",     "COIL",   "-1",     "65535",  "65536",
                                             "2147483647", "-65535",      "BYTES",  "STRING", "DOUBLE", ".1",
                                             "A.2",        "{",           "LOCKED", "+",      "\xFF",   "\xC3",
                                             "9999999999", "-2147483648", " 7"};
    Chance chance(7);
    std::string text;
    for (int line = 0; line < 50'000; ++line)
    {
        text += chance.happens(80) ? "HOLDING" : "INPUT";
        const int count = chance.pick(4, 10);
        for (int field = 0; field < count; ++field)
            text += "," + fields[static_cast<std::size_t>(chance.pick(0, static_cast<int>(fields.size()) - 1))];
        text += '\n';
    }
    load(text);
}

TEST_F(DefinitionFileAbuse, NumbersAroundTheEndsStayInsideTheSpace)
{
    const char* const addresses[] = {"-2147483649", "-2147483648", "-2147483647", "-65537",     "-65536",
                                     "-1",          "0",           "1",           "65534",      "65535",
                                     "65536",       "65537",       "2147418112",  "2147483646", "2147483647",
                                     "2147483648",  "4294901760",  "4294967295",  "4294967296", "18446744073709551615"};
    const char* const counts[] = {"1",          "2",          "65535",      "65536",     "65537",
                                  "2147483646", "2147483647", "2147483648", "4294967297"};
    for (const char* address : addresses)
    {
        std::string text;
        for (const char* count : counts)
            text += std::string("INPUT,") + address + ",NONE,STRING,A,x," + count + "\n";
        load(text);
    }
    EXPECT_TRUE(slot(0, RegisterSpace::Input).used);
    EXPECT_FALSE(slot(65535, RegisterSpace::Coil).used);
    EXPECT_FALSE(slot(0, RegisterSpace::Status).used);
}

TEST_F(DefinitionFileAbuse, LongObjectsThatCoverEachOtherAreReadInOnePass)
{
    constexpr int lines = 65536;
    for (const char* count : {"65535", "2147483647"})
    {
        map.initialise();
        std::string text;
        for (int line = 0; line < lines; ++line)
        {
            text += "HOLDING," + std::to_string(line) + (line % 2 == 0 ? ",BYTES+WORDS+LONGS" : ",NONE") + ",STRING,T" +
                    std::to_string(line) + ",x," + count + "\n";
        }
        load(text);
        for (int address = 0; address < lines; ++address)
        {
            ASSERT_EQ(slot(address).startAddress, static_cast<std::uint32_t>(address));
            ASSERT_TRUE(slot(address).SwapLongs);
        }
    }
}

TEST_F(DefinitionFileAbuse, LongObjectsInFrontOfEachOtherAreReadInOnePass)
{
    std::string text;
    for (int line = 65535; line >= 0; --line)
        text +=
            "COIL,-" + std::to_string(line) + ",WORDS,STRING,T" + std::to_string(line) + ",x,2147483647,LOCKED,OK\n";
    load(text);
    EXPECT_EQ(slot(0, RegisterSpace::Coil).tagname.view(), "T0");
    EXPECT_EQ(slot(65535, RegisterSpace::Coil).tagname.view(), "T0");
    EXPECT_TRUE(slot(65535, RegisterSpace::Coil).SwapWords);
}

TEST_F(DefinitionFileAbuse, TextsOfLinesThatEndUpWithoutASlotAreNotKept)
{
    load("HOLDING,5,NONE,INT16,COVERED_NAME,covered text,1\n"
         "HOLDING,70000,NONE,INT16,OUTSIDE_NAME,outside text,1\n"
         "HOLDING,-9,NONE,DOUBLE,BEFORE_NAME,before text,4\n"
         "HOLDING,70000,NONE,STRING,LOOKED_UP_NAME,looked up\n"
         "HOLDING,5,NONE,INT16,SHOWN_NAME,shown text,1\n");
    for (const char* text : {"COVERED_NAME", "covered text", "OUTSIDE_NAME", "outside text", "BEFORE_NAME",
                             "before text", "LOOKED_UP_NAME", "looked up"})
        EXPECT_EQ(InternedText::known(text), std::nullopt) << text;
    EXPECT_EQ(slot(5).tagname.view(), "SHOWN_NAME");
    EXPECT_EQ(slot(5).description.view(), "shown text");
}
