#include "tests/core/DefinitionFileFixture.h"

namespace
{

using enum DefinitionLoad;

/// Whether a save would write back all that a file says.
class DefinitionLoadResult : public DefinitionFileFixture
{
protected:
    DefinitionLoad loadOf(std::string_view bytes)
    {
        map.initialise();
        return loadDefinitionFile(folder.write("map.csv", bytes), map, tags);
    }

    /// Of a sound line and another one.
    DefinitionLoad loadWith(const std::string& line)
    {
        return loadOf("HOLDING,00001,NONE,INT16,A,about,1,UNLOCKED,OK\n" + line + "\n");
    }
};

} // namespace

TEST_F(DefinitionLoadResult, IsNoFileWhereThereIsNone)
{
    EXPECT_EQ(loadDefinitionFile("", map, tags), NoFile);
    EXPECT_EQ(loadDefinitionFile(folder / "missing.csv", map, tags), NoFile);
    EXPECT_EQ(loadDefinitionFile(folder.write("file", "x") / "below", map, tags), NoFile);
    EXPECT_FALSE(isLoaded(NoFile));
}

TEST_F(DefinitionLoadResult, IsUnreadableForWhatIsThereAndCannotBeRead)
{
    EXPECT_EQ(loadDefinitionFile(folder.path(), map, tags), Unreadable);
    EXPECT_FALSE(isLoaded(Unreadable));
}

TEST_F(DefinitionLoadResult, IsWholeForWhatThisProgramWrites)
{
    const std::string written = "COIL,00007,NONE,INT16,Pump2Run.1,Pump 2 run,1,LOCKED,ERROR\n"
                                "INPUT,00000,BYTES+WORDS+LONGS,DOUBLE,Pump.1.1,,4,UNLOCKED,OK\n"
                                "STATUS,65535,LONGS,FLOAT,Cut off,at the end of the space,2,UNLOCKED,ERROR\n"
                                "HOLDING,00010,WORDS,INT32,,no name,2,LOCKED,OK\n"
                                "HOLDING,00012,NONE,STRING,Name,\xC3\xA4,2147483647,UNLOCKED,OK\n";
    EXPECT_EQ(loadOf(written), Whole);
    EXPECT_TRUE(isLoaded(Whole));
    EXPECT_EQ(loadOf(saved()), Whole);
    EXPECT_EQ(loadOf(""), Whole);
}

TEST_F(DefinitionLoadResult, IsWholeWhateverTheLineEndsTheEncodingAndTheBlankLines)
{
    EXPECT_EQ(loadOf("\r\n\r\nHOLDING,1,NONE,INT16,A,b,1,UNLOCKED,OK\r \t "
                     "\r,,,,,,,,\r,,,,,,\nCOIL,1,NONE,INT16,A,b,1,LOCKED,OK"),
              Whole);
    EXPECT_EQ(loadOf("HOLDING,1,NONE,INT16,A,\xE4 in ISO 8859-1,1,UNLOCKED,OK\n"), Whole);
    EXPECT_EQ(loadOf("\xEF\xBB\xBFHOLDING,1,NONE,INT16,A,\xC3\xA4 behind a mark,1,UNLOCKED,OK\n"), Whole);
    EXPECT_EQ(loadOf("HOLDING,1,NONE,INT16,A,\xEF\xBF\xBD typed by somebody,1,UNLOCKED,OK\n"), Whole);
}

TEST_F(DefinitionLoadResult, IsPartialWhereBytesBehindAMarkAreNoCharacters)
{
    EXPECT_EQ(loadOf("\xEF\xBB\xBFHOLDING,1,NONE,INT16,A,\xE4 no UTF-8,1,UNLOCKED,OK\n"), Partial);
}

TEST_F(DefinitionLoadResult, IsWholeForShortFormsAndOtherWaysToSayTheSame)
{
    tags.append(tagOf("Name", TagType::String, 12));
    for (const char* const line :
         {"HOLDING,00010,NONE,STRING,Name,about",                          // counted by the database's tag
          "HOLDING,00010,NONE,FLOAT,Name,about",                           // counted by its type
          "HOLDING,00010,NONE,FLOAT,Name,about,2",                         // unlocked
          "HOLDING,00010,NONE,FLOAT,Name,about,,,OK",                      // fields left empty
          "HOLDING,10,,FLOAT,Name,about,0002,UNLOCKED,ERROR,",             // zeros, no order, a comma at the end
          "HOLDING,10,LONGS+WORDS+BYTES,DOUBLE,Name,about,4,UNLOCKED,OK"}) // another order of the names
        EXPECT_EQ(loadWith(line), Whole) << line;
}

TEST_F(DefinitionLoadResult, IsPartialWhenALineWasDropped)
{
    for (const char* const line :
         {"# written by hand", "SPACE,ADDRESS,ORDER,TYPE,TAGNAME,DESCRIPTION,COUNT,LOCK,STATUS",
          "holding,00010,NONE,INT16,Name,about,1,UNLOCKED,OK",
          "HOLDING,00010,NONE,INT16,Name,low, then high,1,UNLOCKED,OK",
          "HOLDING,00010,NONE,INT16,Name.2,about,1,UNLOCKED,OK", "HOLDING,00010,NONE,STRING,Name,about,0,UNLOCKED,OK",
          "HOLDING,00010,NONE,INT16,Name,about,1,UNLOCKED", "HOLDING", "\x1A"})
        EXPECT_EQ(loadWith(line), Partial) << line;
}

TEST_F(DefinitionLoadResult, IsPartialWhenAFieldSaysMoreThanTheMapCanHold)
{
    for (const char* const line :
         {"HOLDING,00010,NONE,INT16,Name,about{0|1},1,UNLOCKED,OK", "HOLDING,00010,NONE,INT16,Name,{,1,UNLOCKED,OK",
          "HOLDING,00010,NONE,UINT16,Name,about,1,UNLOCKED,OK", "HOLDING,00010,NONE,,Name,about,1,UNLOCKED,OK",
          "HOLDING,00010,NONE,STRING,Name,about,99999999999,UNLOCKED,OK",
          "HOLDING,00010,BYTES#WORDS,FLOAT,Name,about,2,UNLOCKED,OK",
          "HOLDING,00010,BYTESWORDSX,FLOAT,Name,about,2,UNLOCKED,OK",
          "HOLDING,00010,BYTES+WORDS#LONGS,DOUBLE,Name,about,4,UNLOCKED,OK",
          "HOLDING,00010,SWAP,INT16,Name,about,1,UNLOCKED,OK", "HOLDING,00010,noBYTES,INT16,Name,about,1,UNLOCKED,OK",
          "HOLDING,00010,NONE,INT32,Name,about,4,UNLOCKED,OK",
          "HOLDING,00010,NONE,STRING,Name,about,4 or 5,UNLOCKED,OK",
          "HOLDING,00010,NONE,INT16,Name,about,1,LOCKED by Ann,OK", "HOLDING,00010,NONE,INT16,Name,about,1,locked,OK",
          "HOLDING,00010,NONE,INT16,Name,about,1,UNLOCKED,to be checked",
          "HOLDING,10 (old 12),NONE,INT16,Name,about,1,UNLOCKED,OK", "HOLDING,,NONE,INT16,Name,about,1,UNLOCKED,OK"})
        EXPECT_EQ(loadWith(line), Partial) << line;
}

TEST_F(DefinitionLoadResult, IsPartialWhenAnObjectBeginsOutsideItsSpace)
{
    EXPECT_EQ(loadWith("HOLDING,65536,NONE,INT16,Name,about,1,UNLOCKED,OK"), Partial);
    EXPECT_EQ(loadWith("INPUT,-1,NONE,DOUBLE,Name,about,4,UNLOCKED,OK"), Partial);
    EXPECT_EQ(loadWith("INPUT,99999999999,NONE,INT16,Name,about,1,UNLOCKED,OK"), Partial);
}

TEST_F(DefinitionLoadResult, IsPartialWhenOneObjectCoversTheHeadOfAnother)
{
    EXPECT_EQ(loadWith("HOLDING,00001,NONE,INT16,Name,about,1,UNLOCKED,OK"), Partial);
    EXPECT_EQ(loadWith("HOLDING,00000,NONE,FLOAT,Name,about,2,UNLOCKED,OK"), Partial);
    EXPECT_EQ(loadWith("HOLDING,00002,NONE,INT16,Name,about,1,UNLOCKED,OK"), Whole);
    EXPECT_EQ(loadWith("COIL,00001,NONE,INT16,Name,about,1,UNLOCKED,OK"), Whole);
}

TEST_F(DefinitionLoadResult, IsWholeWhenOneObjectLiesOverTheEndOfAnother)
{
    const std::string overlapping = "HOLDING,00000,NONE,DOUBLE,A,about,4,UNLOCKED,ERROR" + lineEnd +
                                    "HOLDING,00002,BYTES,INT32,B,about,2,UNLOCKED,ERROR" + lineEnd;
    EXPECT_EQ(loadOf(overlapping), Whole);
    EXPECT_EQ(saved(), overlapping);
}

TEST_F(DefinitionLoadResult, IsPartialWhenAnObjectTakesAByteOrderOverFromTheOneBelow)
{
    const std::string takenOver = "HOLDING,00000,BYTES,DOUBLE,A,about,4,UNLOCKED,OK\n"
                                  "HOLDING,00002,NONE,INT16,B,about,1,UNLOCKED,OK\n";
    EXPECT_EQ(loadOf(takenOver), Partial);
    EXPECT_EQ(loadOf(saved()), Whole);
}

TEST_F(DefinitionLoadResult, IsPartialWhenTheDatabaseHasNoLengthForALineWithoutOne)
{
    EXPECT_EQ(loadOf("HOLDING,00010,NONE,STRING,Unknown,about\n"), Partial);
    EXPECT_EQ(loadOf("HOLDING,00010,NONE,STRING,,about\n"), Partial);
    EXPECT_EQ(loadOf("HOLDING,00010,NONE,FLOAT,Unknown,about\n"), Whole);
}

TEST_F(DefinitionLoadResult, IsPartialWhenThereAreMoreObjectsThanSlots)
{
    std::string full;
    for (const char* const space : {"COIL,", "INPUT,", "STATUS,", "HOLDING,"})
    {
        for (int address = 0; address < registersPerSpace; ++address)
            full += space + std::to_string(address) + ",NONE,INT16,A,x\n";
    }
    EXPECT_EQ(loadOf(full), Whole);
    EXPECT_EQ(loadOf(full + "HOLDING,7,NONE,INT16,A,x\n"), Partial);
}

TEST_F(DefinitionLoadResult, IsPartialForADatabaseGivenByMistake)
{
    EXPECT_EQ(loadOf("{\n  \"structure\": [ { \"lable\": \"Works\", \"dbprefix\": \"\" } ],\n  \"database\": []\n}\n"),
              Partial);
    EXPECT_EQ(usedSlots(map), 0);
}
