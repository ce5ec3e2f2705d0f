#include "map/DefinitionReader.h"

#include "tests/core/TagBuilder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

/// What an observer is told about one line, as a text to compare with.
std::string described(const DefinitionFileLine& line)
{
    constexpr std::string_view faults[] = {"field count", "unknown space", "dotted tagname", "no registers"};
    const std::string start = std::to_string(line.number) + ": ";
    if (const auto* const fault = std::get_if<LineFault>(&line.meaning))
        return start + std::string(faults[static_cast<std::size_t>(*fault)]);
    const auto& object = std::get<DefinitionObject>(line.meaning);
    return start + std::string(spaceKeyword(object.space)) + ' ' + std::to_string(object.start) + '+' +
           std::to_string(object.count) + ' ' + std::string(object.tagname);
}

/// Each line as it is told to an observer.
std::vector<std::string> toldLines(std::string_view text, const TagTable& tags = {})
{
    std::vector<std::string> told;
    RegisterMap map;
    readDefinition(text, map, tags, [&](const DefinitionFileLine& line) { told.push_back(described(line)); });
    return told;
}

using Told = std::vector<std::string>;

} // namespace

TEST(DefinitionReader, TellsTheObjectOfEachLineWithItsNumber)
{
    EXPECT_EQ(toldLines("COIL,00007,NONE,INT16,Run.1,,1,LOCKED,OK\r\n"
                        "HOLDING,65534,NONE,DOUBLE,Level,,4\n"
                        "INPUT,3,NONE,FLOAT,Flow,about\n"),
              (Told{"1: COIL 7+1 Run", "2: HOLDING 65534+4 Level", "3: INPUT 3+2 Flow"}));
}

TEST(DefinitionReader, TellsWhyALineIsDropped)
{
    EXPECT_EQ(toldLines("\n"
                        "HOLDING,1,NONE,INT16,A,one, two,1,UNLOCKED,OK\n"
                        "holding,1,NONE,INT16,A,,1,UNLOCKED,OK\n"
                        "HOLDING,1,NONE,INT16,A.2,,1,UNLOCKED,OK\n"
                        "HOLDING,1,NONE,STRING,A,,0,UNLOCKED,OK\n"),
              (Told{"1: field count", "2: field count", "3: unknown space", "4: dotted tagname", "5: no registers"}));
}

TEST(DefinitionReader, TellsOfSeveralFaultsTheFirst)
{
    EXPECT_EQ(toldLines("holding,1,NONE,STRING,A.2,,0\nHOLDING,1,NONE,STRING,A.2,,0"),
              (Told{"1: unknown space", "2: dotted tagname"}));
}

TEST(DefinitionReader, TellsTheRegistersThatTheDatabaseGivesALineOfSixFields)
{
    TagTable tags;
    tags.append(tagOf("Text", TagType::String, 7));
    EXPECT_EQ(toldLines("HOLDING,1,NONE,STRING,Text,about\n", tags), (Told{"1: HOLDING 1+4 Text"}));
}

TEST(DefinitionReader, TellsTheLineItselfAndItsFields)
{
    RegisterMap map;
    std::string text;
    DefinitionFileLine seven;
    readDefinition("HOLDING,1,NONE,INT16,A,about A,1\r\na,b,c,d,e,f,g,h,i,j,k,l", map, {},
                   [&](const DefinitionFileLine& line)
                   {
                       text = line.text;
                       if (line.number == 1)
                           seven = line;
                       else
                           EXPECT_EQ(line.fieldCount, 10U);
                   });
    EXPECT_EQ(seven.text, "HOLDING,1,NONE,INT16,A,about A,1");
    EXPECT_EQ(seven.fieldCount, 7U);
    EXPECT_EQ(seven.fields.description, "about A");
    EXPECT_EQ(seven.fields.lock, "UNLOCKED");
    EXPECT_EQ(text, "a,b,c,d,e,f,g,h,i,j,k,l");
}

TEST(DefinitionReader, PlacesTheObjectsWithoutAnObserverToo)
{
    RegisterMap map;
    readDefinition("HOLDING,5,NONE,INT16,A,,1,UNLOCKED,OK", map, {});
    EXPECT_EQ(map.slots(RegisterSpace::Holding)[5].tagname.view(), "A");
}
