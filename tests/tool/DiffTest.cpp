#include "tests/core/TempFolder.h"
#include "tests/tool/ToolRun.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>

namespace
{

const std::string speed = "HOLDING,00100,NONE,FLOAT,SPEED,Speed,2,UNLOCKED,OK\n";
const std::string lockedLevel = "HOLDING,00200,NONE,INT16,LEVEL,Level,1,LOCKED,OK\n";

class Diff : public testing::Test
{
protected:
    ToolRun diff(const std::string& before, const std::string& after, std::vector<std::string> options = {})
    {
        folder.write("old.csv", before);
        folder.write("new.csv", after);
        options.insert(options.begin(), {"diff", "old.csv", "new.csv"});
        return runTool(options, here());
    }

    Surroundings here() const { return {.folder = folder.path().string()}; }

    TempFolder folder;
};

} // namespace

TEST_F(Diff, EndsWithZeroWhenNoObjectDiffers)
{
    const ToolRun run = diff(speed + lockedLevel, lockedLevel + "HOLDING,100,NONE,FLOAT,SPEED,Speed,2\n");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "tolvane-map: no object differs\n");
}

TEST_F(Diff, SaysWhatChangedByObjectAndEndsWithOne)
{
    const ToolRun run = diff(speed + "INPUT,00001,NONE,INT16,A,,1,UNLOCKED,OK\n"
                                     "INPUT,00002,NONE,STRING,B,,3,UNLOCKED,OK\n",
                             "HOLDING,00120,WORDS,FLOAT,SPEED.1,Of pump 1,2,LOCKED,OK\n"
                             "INPUT,00002,NONE,STRING,B,,4,UNLOCKED,OK\n"
                             "INPUT,00009,NONE,DOUBLE,C,,4,UNLOCKED,OK\n");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.output, "- INPUT 00001 A: removed, INT16, 1 register [breaking]\n"
                          "~ INPUT 00002 B: size 3 -> 4 [breaking]\n"
                          "+ INPUT 00009 C: added, DOUBLE, 4 registers\n"
                          "~ HOLDING 00120 SPEED: moved from HOLDING 00100; byte order --- -> -W-; write allowed; "
                          "description \"Speed\" -> \"Of pump 1\"; lock set [breaking]\n");
    EXPECT_EQ(run.errors, "tolvane-map: objects that differ: 1 added, 1 removed, 1 moved, 1 changed; breaking: 3; were "
                          "locked: 0\n");
}

TEST_F(Diff, EndsWithThreeWhenALockedObjectChanged)
{
    const ToolRun run = diff(speed + lockedLevel, speed);
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.output,
              "- HOLDING 00200 LEVEL: removed, INT16, 1 register [breaking] error: the object was locked\n");
    EXPECT_EQ(diff(lockedLevel, "HOLDING,00200,NONE,INT16,LEVEL,Level,1,UNLOCKED,OK\n").output,
              "~ HOLDING 00200 LEVEL: lock taken off error: the object was locked\n");
}

TEST_F(Diff, EndsWithThreeWhenANewObjectTakesRegistersOfALockedOne)
{
    const std::string name = "HOLDING,00100,NONE,STRING,TK1_NAME,Name,6,LOCKED,OK\n";
    const ToolRun run = diff(name, name + "HOLDING,00103,NONE,INT16,P2_RUN,Run,1,UNLOCKED,OK\n");
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.output, "~ HOLDING 00100 TK1_NAME: overwritten at 00103 [breaking] error: the object was locked\n"
                          "+ HOLDING 00103 P2_RUN: added, INT16, 1 register\n");
}

TEST_F(Diff, WritesNothingWhenQuiet)
{
    const ToolRun run = diff(speed, "", {"--quiet"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.output + run.errors, "");
}

TEST_F(Diff, WritesJsonForTools)
{
    const ToolRun run =
        diff(speed + lockedLevel, "HOLDING,00100,NONE,INT32,SPEED,Speed,2,UNLOCKED,OK\n", {"--format", "json"});
    EXPECT_EQ(run.exitCode, 3);
    rapidjson::Document json;
    ASSERT_FALSE(json.Parse(run.output.c_str()).HasParseError()) << run.output;
    EXPECT_STREQ(json["before"].GetString(), "old.csv");
    EXPECT_STREQ(json["after"].GetString(), "new.csv");
    EXPECT_EQ(json["changed"].GetInt(), 1);
    EXPECT_EQ(json["removed"].GetInt(), 1);
    EXPECT_EQ(json["breaking"].GetInt(), 2);
    EXPECT_EQ(json["locked"].GetInt(), 1);
    const auto& change = json["objects"][0];
    EXPECT_STREQ(change["changes"][0].GetString(), "type");
    EXPECT_TRUE(change["breaking"].GetBool());
    EXPECT_FALSE(change["wasLocked"].GetBool());
    EXPECT_STREQ(change["before"]["type"].GetString(), "FLOAT");
    EXPECT_STREQ(change["after"]["type"].GetString(), "INT32");
    EXPECT_EQ(change["after"]["address"].GetInt(), 100);
    EXPECT_FALSE(json["objects"][1].HasMember("after"));
    EXPECT_TRUE(json["objects"][1]["wasLocked"].GetBool());
}

TEST_F(Diff, ReadsOneOfTheMapsFromStandardInput)
{
    folder.write("old.csv", speed);
    Surroundings surroundings = here();
    surroundings.input = lockedLevel;
    EXPECT_EQ(runTool({"diff", "old.csv", "-"}, surroundings).output,
              "- HOLDING 00100 SPEED: removed, FLOAT, 2 registers [breaking]\n"
              "+ HOLDING 00200 LEVEL: added, INT16, 1 register\n");
    EXPECT_EQ(runTool({"diff", "-", "-"}, surroundings).exitCode, 2);
}

TEST_F(Diff, SizesTextsByTheDatabaseThatItIsGiven)
{
    folder.write("plant.json", R"({"structure":[{"lable":"P"}],"database":[{"Name":"T","Type":"String","Size":8}]})");
    const std::string shortForm = "HOLDING,1,NONE,STRING,T,Text\n";
    const std::string longForm = "HOLDING,00001,NONE,STRING,T,Text,4,UNLOCKED,OK\n";
    EXPECT_EQ(diff(shortForm, longForm, {"--json", "plant.json"}).exitCode, 0);
    EXPECT_EQ(diff("HOLDING,00001,NONE,STRING,T,Text,3,UNLOCKED,OK\n", shortForm, {"--json", "plant.json"}).output,
              "~ HOLDING 00001 T: size 3 -> 4 [breaking]\n");
}

TEST_F(Diff, DoesNotCompareALengthThatNobodyKnowsAndSaysSo)
{
    const std::string shortForm = "HOLDING,1,NONE,STRING,T,Text\n";
    const std::string longForm = "HOLDING,00001,NONE,STRING,T,Text,6,LOCKED,OK\n";
    const std::string unlocked = "HOLDING,00001,NONE,STRING,T,Text,6,UNLOCKED,OK\n";
    const ToolRun run = diff(shortForm, unlocked);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors,
              "tolvane-map: there are texts whose lines give no length, and --json is not given: sizes not compared\n"
              "tolvane-map: no object differs\n");
    EXPECT_EQ(diff(longForm, shortForm).output, "~ HOLDING 00001 T: lock taken off error: the object was locked\n");
    EXPECT_EQ(diff("", shortForm).output, "+ HOLDING 00001 T: added, STRING, of unknown length\n");
    EXPECT_EQ(diff("HOLDING,1,NONE,FLOAT,T,Text\n", shortForm).output,
              "~ HOLDING 00001 T: type FLOAT -> STRING [breaking]\n");
    EXPECT_EQ(diff(unlocked, shortForm + "HOLDING,00001,NONE,STRING,T,Text,5,UNLOCKED,OK\n").output,
              "~ HOLDING 00001 T: size 6 -> 5 [breaking]\n")
        << "the last line counts";
}

TEST_F(Diff, DoesNotCompareALengthThatTheDatabaseDoesNotKnow)
{
    folder.write("plant.json", R"({"structure":[{"lable":"P"}],"database":[{"Name":"U","Type":"String","Size":8}]})");
    const ToolRun run = diff("HOLDING,1,NONE,STRING,T,Text\n", "HOLDING,00001,NONE,STRING,T,Text,6,UNLOCKED,OK\n",
                             {"--json", "plant.json"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors, "tolvane-map: there are texts whose lines give no length, and the database does not hold "
                          "their tags: sizes not compared\n"
                          "tolvane-map: no object differs\n");
}

TEST_F(Diff, SaysThatLinesAreLeftOut)
{
    const ToolRun run = diff(speed, speed + "# a comment\n\n");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors, "tolvane-map: new.csv: lines left out as the editor does: 1; tolvane-map check says why\n"
                          "tolvane-map: no object differs\n");
}

TEST_F(Diff, EndsWithTwoWhenAMapCannotBeRead)
{
    folder.write("old.csv", speed);
    const ToolRun run = runTool({"diff", "old.csv", "none.csv"}, here());
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "tolvane-map: none.csv: cannot be read: No such file or directory\n");
}
