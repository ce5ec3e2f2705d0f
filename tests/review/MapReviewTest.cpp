#include "files/ReadFile.h"
#include "source/TagDatabaseLoader.h"
#include "tests/review/ReviewedText.h"
#include "text/Lines.h"

#include <gtest/gtest.h>

namespace
{

/// A line with which nothing is wrong.
const std::string sound = "HOLDING,00100,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK";

} // namespace

TEST(MapReview, FindsNothingInASoundMapAndInAnEmptyOne)
{
    EXPECT_EQ(saidOf({"COIL,00007,NONE,INT16,TANK_LEVEL,,1,LOCKED,OK",
                      "HOLDING,00100,BYTES+WORDS,FLOAT,PUMP_SPEED.1,Speed,2,UNLOCKED,OK",
                      "HOLDING,00102,NONE,STRING,PLC_NAME,,4,UNLOCKED,OK"}),
              Said());
    EXPECT_EQ(said(""), Said());
}

TEST(MapReview, FindsAnUnknownTagAndSuggestsTheNearest)
{
    const Findings findings =
        reviewMap(fileOf({"HOLDING,00100,NONE,FLOAT,PUMP_SPEDE,,2,UNLOCKED,ERROR"}), smallDatabase());
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].rule, Rule::UnknownTag);
    EXPECT_EQ(findings[0].message, "no tag has this name; did you mean PUMP_SPEED?");
    EXPECT_EQ(findings[0].suggestion, "PUMP_SPEED");
    EXPECT_EQ(findings[0].space, "HOLDING");
    EXPECT_EQ(findings[0].address, 100);
    EXPECT_EQ(findings[0].tagname, "PUMP_SPEDE");
    EXPECT_EQ(findings[0].marks, 2);
}

TEST(MapReview, SuggestsNothingForANameThatIsLikeNoOther)
{
    EXPECT_EQ(saidOf({"HOLDING,00100,NONE,FLOAT,VALVE_7,,2,UNLOCKED,ERROR"}),
              Said{"1 unknown-tag: no tag has this name"});
}

TEST(MapReview, FindsALineWithoutATagnameAndSaysNothingAboutItsTag)
{
    const Findings findings = reviewMap(
        fileOf({"HOLDING,00100,NONE,STRING,,,2,UNLOCKED,ERROR", "HOLDING,00200,NONE,INT16,.1,,1,UNLOCKED,ERROR"}),
        smallDatabase());
    ASSERT_EQ(findings.size(), 2U);
    for (const Finding& finding : findings)
    {
        EXPECT_EQ(finding.rule, Rule::NoTagname);
        EXPECT_EQ(finding.message, "no tagname");
        EXPECT_EQ(severityOf(finding.rule), Severity::Error);
    }
}

TEST(MapReview, FindsTypesThatDoNotSuitTheirTag)
{
    EXPECT_EQ(saidOf({"HOLDING,00100,NONE,STRING,PLC_NAME,,3,UNLOCKED,ERROR",
                      "HOLDING,00200,NONE,FLOAT,PLC_NAME,,2,UNLOCKED,ERROR",
                      "HOLDING,00300,NONE,STRING,TANK_LEVEL,,1,UNLOCKED,ERROR"}),
              (Said{"1 bad-type: 3 registers for a tag of 7 characters, which takes 4",
                    "2 bad-type: FLOAT does not suit a tag that is a text",
                    "3 bad-type: a STRING does not suit a tag that is a number"}));
}

TEST(MapReview, FindsATagThatCannotBeWritten)
{
    EXPECT_EQ(saidOf({"HOLDING,00100,NONE,INT16,TANK_LEVEL.1,,1,UNLOCKED,ERROR"}),
              Said{"1 bad-write: the master may not write this tag: it has 1 element and needs 2"});
}

TEST(MapReview, SaysWhyALineIsDropped)
{
    EXPECT_EQ(saidOf({"# a comment", "HOLDING,1,NONE,INT16,TANK_LEVEL,Level, tank 1,1,UNLOCKED,OK",
                      "Holding,00001,NONE,INT16,TANK_LEVEL,,1,UNLOCKED,OK",
                      "HOLDING,00001,NONE,INT16,AREA.TANK_LEVEL,,1,UNLOCKED,OK",
                      "HOLDING,00001,NONE,STRING,PLC_NAME,,0,UNLOCKED,OK", "a,b"}),
              (Said{"1 dropped-line: dropped: 1 field where an object has 9, 7 or 6",
                    "2 dropped-line: dropped: more than 9 fields; is there a comma in the tagname or description?",
                    "3 dropped-line: dropped: \"Holding\" is none of COIL, INPUT, STATUS, HOLDING",
                    "4 dropped-line: dropped: the tagname holds a \".\" and does not end in \".1\"",
                    "5 dropped-line: dropped: a STRING of \"0\" registers has none",
                    "6 dropped-line: dropped: 2 fields where an object has 9, 7 or 6"}));
    EXPECT_EQ(
        saidOf({"HOLDING,00001,NONE,INT16,TANK_LEVEL,Level, tank 1,1"}),
        Said{"1 dropped-line: dropped: 8 fields where an object has 9, 7 or 6; is there a comma in the tagname or "
             "description?"});
}

TEST(MapReview, NamesTheObjectOfADroppedLine)
{
    const Findings findings = reviewMap(fileOf({"HOLDING,00007,NONE,INT16,TANK,a, b,1,UNLOCKED,OK"}), smallDatabase());
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].space, "HOLDING");
    EXPECT_EQ(findings[0].address, 7);
    EXPECT_EQ(findings[0].tagname, "TANK");
}

TEST(MapReview, WarnsOfABlankLine)
{
    EXPECT_EQ(saidOf({sound, "", " \t"}),
              (Said{"2 blank-line: blank line, gone after saving", "3 blank-line: blank line, gone after saving"}));
}

TEST(MapReview, FindsNumbersThatAreNone)
{
    EXPECT_EQ(saidOf({"HOLDING,1OO,NONE,FLOAT,PUMP_SPEED,,2,UNLOCKED,OK",
                      "HOLDING,00200,NONE,STRING,PLC_NAME,,4x,UNLOCKED,OK"}),
              (Said{"1 bad-number: the address \"1OO\" is read as 1",
                    "2 bad-number: the register count \"4x\" is read as 4; is there a comma in the description?"}));
}

TEST(MapReview, WarnsOfACommaInTheDescriptionOfAShortLine)
{
    EXPECT_EQ(saidOf({"HOLDING,00100,NONE,FLOAT,PUMP_SPEED,Speed, pump 1"}),
              Said{"1 ignored-count: the register count \" pump 1\" is no number and passed over; is there a comma in "
                   "the description?"});
}

TEST(MapReview, FindsObjectsThatAreCutOffAtTheEndsOfTheSpace)
{
    EXPECT_EQ(saidOf({"HOLDING,-2,NONE,DOUBLE,TANK_LEVEL,,4,UNLOCKED,OK",
                      "HOLDING,65534,NONE,DOUBLE,TANK_LEVEL,,4,UNLOCKED,OK",
                      "HOLDING,65536,NONE,INT16,TANK_LEVEL,,1,UNLOCKED,OK"}),
              (Said{"1 cut-off: cut off: of registers -2 to 1, only 0 to 1 lie in the space",
                    "2 cut-off: cut off: of registers 65534 to 65537, only 65534 to 65535 lie in the space",
                    "3 cut-off: cut off: register 65536 lies outside 0 to 65535"}));
}

TEST(MapReview, FindsOverlapsAndNamesBothLines)
{
    const Findings findings = reviewMap(fileOf({"HOLDING,00100,NONE,DOUBLE,PUMP_SPEED,,4,LOCKED,OK",
                                                "HOLDING,00102,NONE,INT16,TANK_LEVEL,,1,UNLOCKED,OK"}),
                                        smallDatabase());
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].line, 2);
    EXPECT_EQ(findings[0].otherLine, 1);
    EXPECT_EQ(findings[0].message, "takes register 00102 from the locked PUMP_SPEED of line 1");
}

TEST(MapReview, SaysThatAnObjectTakesAByteOrderOver)
{
    EXPECT_EQ(saidOf({"HOLDING,00100,BYTES+WORDS,FLOAT,PUMP_SPEED,,2,UNLOCKED,OK",
                      "HOLDING,00101,BYTES,INT16,TANK_LEVEL,,1,UNLOCKED,OK"}),
              Said{"2 overlap: takes register 00101 from PUMP_SPEED of line 1, and its byte order WORDS"});
}

TEST(MapReview, CallsTheSameLineTheSame)
{
    EXPECT_EQ(saidOf({sound, sound}), Said{"2 overlap: same as line 1"});
}

TEST(MapReview, TellsAnOverlapOnceForEachEarlierLine)
{
    // The second line leaves two ends of the first, and the third takes both of them and the second.
    EXPECT_EQ(saidOf({"HOLDING,00100,NONE,DOUBLE,PUMP_SPEED,,4,UNLOCKED,OK",
                      "HOLDING,00101,NONE,FLOAT,TANK_LEVEL,,2,UNLOCKED,OK",
                      "HOLDING,00100,NONE,DOUBLE,TANK_LEVEL,,4,UNLOCKED,OK"}),
              (Said{"2 overlap: takes registers 00101 to 00102 from PUMP_SPEED of line 1",
                    "3 overlap: takes register 00100 from PUMP_SPEED of line 1",
                    "3 overlap: takes registers 00101 to 00102 from TANK_LEVEL of line 2",
                    "3 order: saving sorts the "
                    "lines by space and address; this one comes before line 2"}));
}

TEST(MapReview, KeepsTheSpacesApartWhenItLooksForOverlaps)
{
    EXPECT_EQ(saidOf({"INPUT,00100,NONE,FLOAT,PUMP_SPEED,,2,UNLOCKED,OK",
                      "HOLDING,00100,NONE,FLOAT,PUMP_SPEED,,2,UNLOCKED,OK",
                      "HOLDING,00102,NONE,FLOAT,PUMP_SPEED,,2,UNLOCKED,OK"}),
              Said());
}

TEST(MapReview, WarnsOfABraceInADescription)
{
    EXPECT_EQ(saidOf({"HOLDING,00100,NONE,FLOAT,PUMP_SPEED,Speed {rpm},2,UNLOCKED,OK"}),
              Said{"1 brace: the description is read up to its \"{\" only, as \"Speed \""});
}

TEST(MapReview, FindsATypeThatIsReadAsInt16)
{
    EXPECT_EQ(saidOf({"HOLDING,00100,NONE,BOOL,TANK_LEVEL,,1,UNLOCKED,OK",
                      "HOLDING,00102,NONE,float,PUMP_SPEED,,2,UNLOCKED,OK"}),
              (Said{"1 unknown-type: the type \"BOOL\" is read as INT16 of 1 register",
                    "2 unknown-type: the type \"float\" is read as INT16 of 1 register"}));
}

TEST(MapReview, FindsWordsThatMeanNoByteOrder)
{
    const auto of = [](const std::string& order)
    { return saidOf({"HOLDING,00100," + order + ",FLOAT,PUMP_SPEED,,2,UNLOCKED,OK"}); };
    const std::string none = " is none of NONE, BYTES, WORDS, LONGS: the byte order ";
    EXPECT_EQ(of("BYTES+WORD"), Said{"1 unknown-order: \"WORD\"" + none + "\"BYTES+WORD\" is read as BYTES"});
    EXPECT_EQ(of("words"), Said{"1 unknown-order: \"words\"" + none + "\"words\" is read as NONE"});
    EXPECT_EQ(of("xLONGS+WORDS"),
              Said{"1 unknown-order: \"xLONGS\"" + none + "\"xLONGS+WORDS\" is read as WORDS+LONGS"});
    EXPECT_EQ(of("BYTES+WORDS"), Said());
    EXPECT_EQ(of("WORDS + BYTES").size(), 1U) << "only another form";
    EXPECT_EQ(of("WORDS + BYTES")[0].find("unknown-order"), std::string::npos);
}

TEST(MapReview, FindsALockThatIsNone)
{
    EXPECT_EQ(saidOf({"HOLDING,00100,NONE,FLOAT,PUMP_SPEED,,2,locked,OK", "HOLDING,00102,NONE,FLOAT,PUMP_SPEED,,2,,OK",
                      "HOLDING,00104,NONE,FLOAT,PUMP_SPEED,,2,LOCKED!,OK"}),
              (Said{"1 unknown-lock: the lock \"locked\" is read as UNLOCKED",
                    "2 unknown-lock: the lock \"\" is read as UNLOCKED",
                    "3 unknown-lock: the lock \"LOCKED!\" is read as LOCKED"}));
}

TEST(MapReview, TakesWhatReadingChangesInSilenceForAnErrorAndShorterWordsForAWarning)
{
    for (const Rule rule : {Rule::UnknownType, Rule::UnknownOrder, Rule::UnknownLock})
        EXPECT_EQ(severityOf(rule), Severity::Error) << ruleName(rule);
    for (const Rule rule : {Rule::BlankLine, Rule::IgnoredCount, Rule::Brace})
        EXPECT_EQ(severityOf(rule), Severity::Warning) << ruleName(rule);
}

TEST(MapReview, WarnsOfMoreThanABitInCoilAndStatusAlone)
{
    EXPECT_EQ(
        saidOf({"COIL,00100,NONE,FLOAT,PUMP_SPEED,,2,UNLOCKED,OK", "COIL,00102,NONE,INT16,TANK_LEVEL,,1,UNLOCKED,OK",
                "INPUT,00100,NONE,FLOAT,PUMP_SPEED,,2,UNLOCKED,OK",
                "STATUS,00100,NONE,STRING,PLC_NAME,,4,UNLOCKED,OK"}),
        (Said{"1 bit-space: a FLOAT in a space of single bits", "4 bit-space: a STRING in a space of single bits"}));
}

TEST(MapReview, WarnsOfLinesThatSavingWritesInAnotherForm)
{
    EXPECT_EQ(
        saidOf({"HOLDING,100,WORDS+BYTES,FLOAT,PUMP_SPEED,Speed"}),
        Said{"1 other-form: short form: saving writes HOLDING,00100,BYTES+WORDS,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK"});
    EXPECT_EQ(saidOf({"HOLDING,00100,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,ERROR"}),
              Said{"1 other-form: status: saving writes " + sound});
    EXPECT_EQ(saidOf({"HOLDING,100,NONE,FLOAT,PUMP_SPEED,Speed,1,UNLOCKED,OK"}),
              Said{"1 other-form: address, register count: saving writes " + sound});
    EXPECT_EQ(saidOf({sound + ','}), Said{"1 other-form: saving writes " + sound});
}

TEST(MapReview, WarnsOnceOfLinesInAnotherOrder)
{
    EXPECT_EQ(saidOf({"HOLDING,00300,NONE,FLOAT,PUMP_SPEED,,2,UNLOCKED,OK",
                      "HOLDING,00200,NONE,FLOAT,PUMP_SPEED,,2,UNLOCKED,OK",
                      "INPUT,00100,NONE,FLOAT,PUMP_SPEED,,2,UNLOCKED,OK"}),
              Said{"2 order: saving sorts the lines by space and address; this one comes before line 1"});
}

TEST(MapReview, WarnsOfAnotherEncoding)
{
    EXPECT_EQ(said("\xEF\xBB\xBF" + fileOf({sound})),
              Said{"1 encoding: saving writes UTF-8 without a byte-order mark"});
}

TEST(MapReview, WarnsOfOtherLineEnds)
{
    const std::string other = nativeLineEnd == "\n" ? "\r\n" : "\n";
    const std::string said1 = nativeLineEnd == "\n" ? "the line ends with CR LF; saving writes LF"
                                                    : "the line ends with LF; saving writes CR LF";
    EXPECT_EQ(said(sound + other), Said{"1 encoding: " + said1});
    EXPECT_EQ(said(sound), Said{"1 encoding: the last line has no end; saving writes one"});
}

TEST(MapReview, GivesTheFindingsByLineWhateverTheirKind)
{
    EXPECT_EQ(
        saidOf({"HOLDING,00100,NONE,FLOAT,PUMP,,2,UNLOCKED,ERROR", "nothing",
                "COIL,00100,NONE,FLOAT,PUMP,,2,UNLOCKED,ERROR"}),
        (Said{"1 unknown-tag: no tag has this name", "2 dropped-line: dropped: 1 field where an object has 9, 7 or 6",
              "3 unknown-tag: no tag has this name", "3 bit-space: a FLOAT in a space of single bits",
              "3 order: saving sorts the lines by space and address; this one comes before line 1"}));
}

TEST(MapReview, FindsInTheSamplePlantItsThreeMistakesAlone)
{
    TagDatabase database;
    ASSERT_EQ(loadTagDatabase(TOLVANE_SAMPLES "/waterworks.json", database), LoadResult::Loaded);
    const auto bytes = readFile(TOLVANE_SAMPLES "/waterworks.csv");
    ASSERT_TRUE(bytes);
    // With the line ends of another system there would be a warning about them.
    std::string map;
    forEachLine(*bytes, [&map](std::string_view line) { map.append(line).append(nativeLineEnd); });
    std::vector<std::string> found;
    int marks = 0;
    for (const Finding& finding : reviewMap(map, database.tags))
    {
        found.push_back(std::string(ruleName(finding.rule)) + ' ' + finding.tagname + ' ' + finding.suggestion);
        marks += finding.marks;
    }
    EXPECT_EQ(found,
              (std::vector<std::string>{"bad-type SIT_PLC_FW_ID ", "unknown-tag INT_RIVER_TRUB_PV INT_RIVER_TURB_PV",
                                        "bad-write INT_RWM_FLOW_PV "}));
    EXPECT_EQ(marks, 11);
}
