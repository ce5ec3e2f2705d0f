#include "map/Validation.h"
#include "tests/core/DefinitionFileFixture.h"

namespace
{

using DefinitionReading = DefinitionFileFixture;

} // namespace

TEST_F(DefinitionReading, NineFieldsArePlacedAsTheyStand)
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
    EXPECT_EQ(usedSlots(map), 3);
}

TEST_F(DefinitionReading, SevenFieldsAreUnlocked)
{
    load("HOLDING,10,WORDS,STRING,Name.1,text,5\n");
    EXPECT_EQ(slot(10).registerCount, 5U);
    EXPECT_TRUE(slot(14).used);
    EXPECT_TRUE(slot(10).write);
    EXPECT_FALSE(slot(10).locked);
    EXPECT_EQ(usedSlots(map), 5);
}

TEST_F(DefinitionReading, SevenFieldsAtTheEndOfTheSpaceKeepTheirCount)
{
    load("HOLDING,65535,NONE,DOUBLE,X,,4");
    EXPECT_EQ(slot(65535).registerCount, 4U);
    EXPECT_EQ(usedSlots(map), 1);
    EXPECT_EQ(saved(), "HOLDING,65535,NONE,DOUBLE,X,,4,UNLOCKED,ERROR" + lineEnd);
}

TEST_F(DefinitionReading, SixFieldsHaveTheCountOfTheirType)
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

TEST_F(DefinitionReading, SixFieldStringIsSizedByTheDatabase)
{
    tags.append(tagOf("Even", TagType::String, 6));
    tags.append(tagOf("Odd", TagType::String, 7));
    tags.append(tagOf("Longest", TagType::String, 255));
    tags.append(tagOf("Number", TagType::Integer, 4));
    load("HOLDING,0,NONE,STRING,Even,x\nHOLDING,10,NONE,STRING,Odd,x\nHOLDING,200,NONE,STRING,Longest,x\n"
         "HOLDING,400,NONE,STRING,Number,x\nHOLDING,500,NONE,STRING,Missing,x\nHOLDING,600,NONE,STRING,even,x\n");
    EXPECT_EQ(slot(0).registerCount, 3U);
    EXPECT_EQ(slot(10).registerCount, 4U);
    EXPECT_EQ(slot(200).registerCount, 128U);
    EXPECT_EQ(slot(400).registerCount, 2U);
    EXPECT_EQ(slot(500).registerCount, 1U);
    EXPECT_EQ(slot(600).registerCount, 1U);
}

TEST_F(DefinitionReading, SixFieldStringOfATagWithoutSizeIsDropped)
{
    tags.append(tagOf("Nothing", TagType::String, 0));
    load("HOLDING,0,NONE,STRING,Nothing,x\n");
    EXPECT_EQ(usedSlots(map), 0);
}

TEST_F(DefinitionReading, SixFieldStringIsLookedUpByItsNameUpToTheFirstDot)
{
    tags.append(tagOf("Pump", TagType::String, 10));
    tags.append(tagOf("Pump.1", TagType::String, 40));
    load("HOLDING,0,NONE,STRING,Pump.1,x\nHOLDING,50,NONE,STRING,Pump.1.1,x\n");
    EXPECT_EQ(slot(0).registerCount, 5U);
    EXPECT_EQ(slot(0).tagname.view(), "Pump");
    EXPECT_EQ(slot(50).registerCount, 5U);
    EXPECT_EQ(slot(50).tagname.view(), "Pump.1");
}

TEST_F(DefinitionReading, SixFieldStringTakesTheFirstOfEqualTags)
{
    tags.append(tagOf("Twice", TagType::String, 8));
    tags.append(tagOf("Twice", TagType::String, 20));
    load("HOLDING,0,NONE,STRING,Twice,x\n");
    EXPECT_EQ(slot(0).registerCount, 4U);
}

TEST_F(DefinitionReading, SixFieldStringWithoutNameMeetsNoUnusedTag)
{
    load("HOLDING,0,NONE,STRING,,x\n");
    EXPECT_EQ(slot(0).registerCount, 1U);
    tags.append(tagOf("", TagType::String, 8));
    load("HOLDING,10,NONE,STRING,,x\n");
    EXPECT_EQ(slot(10).registerCount, 4U);
}

TEST_F(DefinitionReading, SevenAndNineFieldStringsAreNotSizedByTheDatabase)
{
    tags.append(tagOf("Name", TagType::String, 20));
    load(
        "HOLDING,0,NONE,STRING,Name,x,3\nHOLDING,10,NONE,STRING,Name,x,0\nHOLDING,20,NONE,STRING,Name,x,x,LOCKED,OK\n");
    EXPECT_EQ(slot(0).registerCount, 3U);
    EXPECT_EQ(usedSlots(map), 3);
}

TEST_F(DefinitionReading, LinesOfAnyOtherNumberOfFieldsAreSkipped)
{
    load("\n   \n# a comment\nspace,address,order,type,tagname\nHOLDING\nHOLDING,1,NONE,INT16,A\n"
         "HOLDING,2,NONE,INT16,A,text,1,LOCKED\nHOLDING,3,NONE,INT16,A,a,b,1,UNLOCKED,OK\n"
         "HOLDING,4,NONE,INT16,A,a,1,UNLOCKED,OK,,,,,,,,,,,,\n,,,,,,,,\n"
         "HOLDING,5,NONE,INT16,A,text,1,LOCKED,OK\n");
    EXPECT_EQ(usedSlots(map), 1);
    EXPECT_TRUE(slot(5).used);
}

TEST_F(DefinitionReading, OneEmptyFieldBehindAFinalCommaIsNotCounted)
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
    EXPECT_EQ(usedSlots(map), 4);
}

TEST_F(DefinitionReading, EmptyFieldsBetweenCommasCount)
{
    load("HOLDING,,,,,,,,x\nCOIL,5,NONE,INT16,,,1\n");
    EXPECT_TRUE(slot(0).used);
    EXPECT_EQ(slot(0).type, DataType::Int16);
    EXPECT_TRUE(slot(0).tagname.empty());
    EXPECT_TRUE(slot(5, RegisterSpace::Coil).used);
    EXPECT_EQ(usedSlots(map), 2);
}

TEST_F(DefinitionReading, FieldsAreNotTrimmedAndQuotesMeanNothing)
{
    load("HOLDING , 1,NONE,INT16,A,x,1,UNLOCKED,OK\n HOLDING,2,NONE,INT16,A,x,1,UNLOCKED,OK\n"
         "\"HOLDING\",3,NONE,INT16,A,x,1,UNLOCKED,OK\nHOLDING,4,NONE,INT16, A B ,\" x \",1,UNLOCKED,OK\n");
    EXPECT_EQ(usedSlots(map), 1);
    EXPECT_EQ(slot(4).tagname.view(), " A B ");
    EXPECT_EQ(slot(4).description.view(), "\" x \"");
}

TEST_F(DefinitionReading, MalformedLinesDoNotDisturbTheOthers)
{
    load("HOLDING,1,NONE,INT16,A,,1,UNLOCKED,OK\nholding,2,NONE,INT16,A,,1,UNLOCKED,OK\n"
         "HOLDING,3,NONE,INT16,A.2,,1,UNLOCKED,OK\nHOLDING,4,NONE,STRING,A,,0,UNLOCKED,OK\n"
         "HOLDING,70000,NONE,INT16,A,,1,UNLOCKED,OK\nHOLDING,6,NONE,INT16,A,,1,UNLOCKED,OK\n");
    EXPECT_TRUE(slot(1).used);
    EXPECT_TRUE(slot(6).used);
    EXPECT_EQ(usedSlots(map), 2);
}

TEST_F(DefinitionReading, LaterLinesWinButForTheSwapFlags)
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

TEST_F(DefinitionReading, ReadingAddsToWhatTheMapHolds)
{
    load("HOLDING,1,LONGS,INT16,A,a,1,UNLOCKED,OK\n");
    load("HOLDING,2,NONE,INT16,B,b,1,UNLOCKED,OK\nHOLDING,1,NONE,INT16,C,c,1,UNLOCKED,OK\n");
    EXPECT_EQ(slot(1).tagname.view(), "C");
    EXPECT_TRUE(slot(1).SwapLongs);
    EXPECT_TRUE(slot(2).used);
}

TEST_F(DefinitionReading, AnyLineEndIsRead)
{
    load("HOLDING,1,NONE,INT16,A,a,1,UNLOCKED,OK\r\nHOLDING,2,NONE,INT16,B,b\rHOLDING,3,NONE,INT16,C,c\n"
         "\r\n\r\nHOLDING,4,NONE,INT16,D,d");
    EXPECT_EQ(usedSlots(map), 4);
    EXPECT_EQ(slot(2).description.view(), "b");
    EXPECT_EQ(slot(4).description.view(), "d");
}

TEST_F(DefinitionReading, TextIsUtf8)
{
    load("HOLDING,1,NONE,INT16,Behälter,水位 °C,1,UNLOCKED,OK\n");
    EXPECT_EQ(slot(1).tagname.view(), "Behälter");
    EXPECT_EQ(slot(1).description.view(), "水位 °C");
}

TEST_F(DefinitionReading, ByteOrderMarksAreNoPartOfTheFirstLine)
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

TEST_F(DefinitionReading, BytesThatAreNoUtf8AreIso8859)
{
    load("HOLDING,1,NONE,INT16,A,Beh\xE4lter\nHOLDING,2,NONE,INT16,A,\xC3\xA4\n");
    EXPECT_EQ(slot(1).description.view(), "Behälter");
    EXPECT_EQ(slot(2).description.view(), "Ã¤");
}

TEST_F(DefinitionReading, StatusFieldIsNotRead)
{
    tags.append(tagOf("A", TagType::Integer, 0));
    load("HOLDING,1,NONE,INT16,A,x,1,UNLOCKED,ERROR\nHOLDING,2,NONE,INT16,Missing,x,1,UNLOCKED,OK\n");
    validateMap(map, tags);
    EXPECT_EQ(slot(1).tagIndex, 0);
    EXPECT_EQ(slot(2).tagIndex, -1);
    EXPECT_EQ(countErrors(map), 1);
}
