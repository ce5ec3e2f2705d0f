#include "tests/core/TempFolder.h"
#include "tests/tool/ToolRun.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <sstream>
#include <string>

namespace
{

const std::string database = R"({"structure":[{"lable":"Plant"}],"database":[
    {"Name":"PUMP_SPEED","Type":"Numeric","Size":4,"Elements":2},
    {"Name":"TANK_LEVEL","Type":"Integer","Size":2,"Elements":1}]})";

const std::string soundMap = "HOLDING,00100,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n";
const std::string warnedMap = "COIL,00100,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n";
const std::string wrongMap = "HOLDING,00100,NONE,FLOAT,PUMP_SPEDE,Speed,2,UNLOCKED,ERROR\n";

class Check : public testing::Test
{
protected:
    /// Checks a map of this text, as the file "map.csv" in the folder where the program is started.
    ToolRun check(const std::string& map, std::vector<std::string> options = {})
    {
        folder.write("plant.json", database);
        folder.write("map.csv", map);
        options.insert(options.begin(), {"check", "--json", "plant.json", "--modbus", "map.csv"});
        return runTool(options, here());
    }

    Surroundings here() const { return {.folder = folder.path().string()}; }

    TempFolder folder;
};

} // namespace

TEST_F(Check, SaysFileLineAndObjectOfEachFindingAndEndsWithOne)
{
    const ToolRun run = check(wrongMap);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.output, "map.csv:1: HOLDING 00100 PUMP_SPEDE: error: no tag has this name; did you mean PUMP_SPEED? "
                          "[unknown-tag]\n");
    EXPECT_EQ(run.errors, "tolvane-map: map.csv: 1 error, 0 warnings, 2 error marks in the editor\n");
}

TEST_F(Check, EndsWithZeroWithoutFindings)
{
    const ToolRun run = check(soundMap);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "tolvane-map: map.csv: 0 errors, 0 warnings, 0 error marks in the editor\n");
}

TEST_F(Check, ShowsWarningsAndEndsWithZero)
{
    const ToolRun run = check(warnedMap);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, "map.csv:1: COIL 00100 PUMP_SPEED: warning: a FLOAT in a space of single bits [bit-space]\n");
}

TEST_F(Check, LeavesWarningsOutWhenTheyAreOff)
{
    const ToolRun run = check(warnedMap, {"--warnings", "off"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "tolvane-map: map.csv: 0 errors, 0 warnings, 0 error marks in the editor\n");
}

TEST_F(Check, TakesWarningsForErrorsWhenAskedTo)
{
    const ToolRun run = check(warnedMap, {"--warnings=error"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.output, "map.csv:1: COIL 00100 PUMP_SPEED: error: a FLOAT in a space of single bits [bit-space]\n");
}

TEST_F(Check, WritesNothingWhenQuiet)
{
    const ToolRun run = check(wrongMap, {"--quiet"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.output + run.errors, "");
}

TEST_F(Check, WritesJsonForTools)
{
    const ToolRun run = check(wrongMap + "nothing\n", {"--format", "json"});
    EXPECT_EQ(run.exitCode, 1);
    rapidjson::Document json;
    ASSERT_FALSE(json.Parse(run.output.c_str()).HasParseError()) << run.output;
    EXPECT_STREQ(json["file"].GetString(), "map.csv");
    EXPECT_EQ(json["errors"].GetInt(), 2);
    EXPECT_EQ(json["warnings"].GetInt(), 0);
    EXPECT_EQ(json["marks"].GetInt(), 2);
    ASSERT_EQ(json["findings"].Size(), 2U);
    const auto& finding = json["findings"][0];
    EXPECT_EQ(finding["line"].GetInt(), 1);
    EXPECT_STREQ(finding["severity"].GetString(), "error");
    EXPECT_STREQ(finding["rule"].GetString(), "unknown-tag");
    EXPECT_STREQ(finding["space"].GetString(), "HOLDING");
    EXPECT_EQ(finding["address"].GetInt(), 100);
    EXPECT_STREQ(finding["tagname"].GetString(), "PUMP_SPEDE");
    EXPECT_STREQ(finding["suggestion"].GetString(), "PUMP_SPEED");
    EXPECT_EQ(finding["marks"].GetInt(), 2);
    EXPECT_FALSE(json["findings"][1].HasMember("space"));
}

TEST_F(Check, WritesEachFindingAsOneLineOfTheJson)
{
    const ToolRun run = check(wrongMap + "nothing\n", {"--format", "json"});
    std::istringstream lines(run.output);
    int findings = 0;
    for (std::string text; std::getline(lines, text);)
    {
        if (text.find("\"rule\":") == std::string::npos)
            continue;
        ++findings;
        if (text.ends_with(','))
            text.pop_back();
        rapidjson::Document finding;
        EXPECT_FALSE(finding.Parse(text.c_str()).HasParseError()) << text;
    }
    EXPECT_EQ(findings, 2);
}

TEST_F(Check, WritesValidJsonOfAnyBytesInNames)
{
    const std::string name = "m\xFF\".csv";
    folder.write("plant.json", database);
    folder.write(name, "HOLDING,00100,NONE,FLOAT,\"\\\xFF,Speed,2,UNLOCKED,ERROR\n");
    const ToolRun run = runTool({"check", "-d", "plant.json", "-m", name, "--format", "json"}, here());
    rapidjson::Document json;
    ASSERT_FALSE(json.Parse<rapidjson::kParseValidateEncodingFlag>(run.output.c_str()).HasParseError()) << run.output;
    EXPECT_STREQ(json["findings"][0]["tagname"].GetString(), "\"\\\xC3\xBF");
}

TEST_F(Check, WritesWorkflowCommands)
{
    folder.write("plant.json", database);
    folder.write("a,b:c.csv", "HOLDING,00100,NONE,FLOAT,100%,Speed,2,UNLOCKED,ERROR\n");
    const ToolRun run = runTool({"check", "-d", "plant.json", "-m", "a,b:c.csv", "--format=github"}, here());
    EXPECT_EQ(run.output, "::error file=a%2Cb%3Ac.csv,line=1,title=unknown-tag::"
                          "HOLDING 00100 100%25: no tag has this name\n");
}

TEST_F(Check, KeepsOneFindingALineWhateverNamesHold)
{
    EXPECT_EQ(check("HOLDING,00100,NONE,FLOAT,A\x1b[31m\x07,Speed,2,UNLOCKED,ERROR\n").output,
              "map.csv:1: HOLDING 00100 A?[31m?: error: no tag has this name [unknown-tag]\n");
}

TEST_F(Check, CommandsNoTerminalWhateverNamesHold)
{
    const std::string commands = "\x1b\x7f\xC2\x9B\xE2\x80\xAE\xE2\x81\xA6";
    const std::string map = "HOLDING,00100,NONE,FLOAT,\xC3\x84" + commands + "Z,Speed,2,UNLOCKED,ERROR\n";
    EXPECT_EQ(check(map).output,
              "map.csv:1: HOLDING 00100 \xC3\x84?????Z: error: no tag has this name [unknown-tag]\n");
    EXPECT_EQ(check(map, {"--format", "github"}).output,
              "::error file=map.csv,line=1,title=unknown-tag::HOLDING 00100 \xC3\x84?????Z: no tag has this name\n");
}

TEST_F(Check, ReadsTheMapFromStandardInput)
{
    folder.write("plant.json", database);
    Surroundings surroundings = here();
    surroundings.input = wrongMap;
    const ToolRun run = runTool({"check", "--json", "plant.json", "--modbus", "-"}, surroundings);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.output.starts_with("<stdin>:1: HOLDING 00100 PUMP_SPEDE:")) << run.output;
}

TEST_F(Check, CallsTheMapByTheNameThatItIsGiven)
{
    folder.write("plant.json", database);
    Surroundings surroundings = here();
    surroundings.input = wrongMap;
    const ToolRun run = runTool({"check", "-d", "plant.json", "-m", "-", "--name", "plant.csv"}, surroundings);
    EXPECT_TRUE(run.output.starts_with("plant.csv:1: HOLDING")) << run.output;
    EXPECT_TRUE(run.errors.starts_with("tolvane-map: plant.csv: 1 error,")) << run.errors;
}

TEST_F(Check, ReadsAMapFromAPipe)
{
    folder.write("plant.json", database);
    folder.write("map.csv", wrongMap);
    const ToolRun run =
        runShell("mkfifo pipe; cat map.csv >pipe & " + shellWord(TOLVANE_MAP) + " check -d plant.json -m pipe", here());
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.output.starts_with("pipe:1: ")) << run.errors;
}

TEST_F(Check, EndsWithTwoWhenAFileCannotBeRead)
{
    folder.write("plant.json", database);
    const ToolRun noMap = runTool({"check", "-d", "plant.json", "-m", "none.csv"}, here());
    EXPECT_EQ(noMap.exitCode, 2);
    EXPECT_EQ(noMap.errors, "tolvane-map: none.csv: cannot be read: No such file or directory\n");
    const ToolRun folderAsMap = runTool({"check", "-d", "plant.json", "-m", "."}, here());
    EXPECT_EQ(folderAsMap.exitCode, 2);
    EXPECT_EQ(folderAsMap.errors, "tolvane-map: .: cannot be read: it is a folder\n");
    const ToolRun failing = runTool({"check", "-d", "plant.json", "-m", "/proc/self/mem"}, here());
    EXPECT_EQ(failing.exitCode, 2);
    EXPECT_EQ(failing.errors, "tolvane-map: /proc/self/mem: cannot be read: Input/output error\n");
}

TEST_F(Check, EndsWithTwoWhenTheDatabaseIsNone)
{
    folder.write("bad.json", "{");
    folder.write("empty.json", "{}");
    folder.write("map.csv", soundMap);
    const ToolRun bad = runTool({"check", "-d", "bad.json", "-m", "map.csv"}, here());
    EXPECT_EQ(bad.exitCode, 2);
    EXPECT_EQ(bad.errors, "tolvane-map: bad.json: Bad JSON format\n");
    const ToolRun empty = runTool({"check", "-d", "empty.json", "-m", "map.csv"}, here());
    EXPECT_EQ(empty.exitCode, 2);
    EXPECT_EQ(empty.errors, "tolvane-map: empty.json: [structure] key missing from JSON file\n");
}

TEST_F(Check, EndsWithTwoWhenItsResultsCannotBeWritten)
{
    folder.write("plant.json", database);
    folder.write("map.csv", wrongMap);
    Surroundings full = here();
    full.outputFile = "/dev/full";
    const ToolRun run = runTool({"check", "-d", "plant.json", "-m", "map.csv"}, full);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(run.errors.starts_with("tolvane-map: cannot write to standard output: No space left on device\n"))
        << run.errors;
}

TEST_F(Check, ColoursFindingsOnATerminalAlone)
{
    folder.write("plant.json", database);
    folder.write("map.csv", wrongMap);
    const std::vector<std::string> arguments{"check", "-d", "plant.json", "-m", "map.csv"};
    Surroundings terminal = here();
    terminal.variables["TERM"] = "xterm";
    EXPECT_NE(runToolOnTerminal(arguments, terminal).output.find("\x1b[1;31merror\x1b[0m"), std::string::npos);
    EXPECT_EQ(runTool(arguments, terminal).output.find('\x1b'), std::string::npos);
}

TEST_F(Check, NeverColoursWhereTheEnvironmentForbidsIt)
{
    folder.write("plant.json", database);
    folder.write("map.csv", wrongMap);
    const std::vector<std::string> arguments{"check", "-d", "plant.json", "-m", "map.csv"};
    for (const char* value : {"", "1"})
    {
        Surroundings terminal = here();
        terminal.variables = {{"TERM", "xterm"}, {"NO_COLOR", value}};
        const std::string output = runToolOnTerminal(arguments, terminal).output;
        EXPECT_NE(output.find("PUMP_SPEDE"), std::string::npos);
        EXPECT_EQ(output.find('\x1b'), std::string::npos);
    }
    Surroundings dumb = here();
    dumb.variables["TERM"] = "dumb";
    EXPECT_EQ(runToolOnTerminal(arguments, dumb).output.find('\x1b'), std::string::npos);
}

TEST_F(Check, GivesTheSamplePlantItsElevenMarks)
{
    const ToolRun run =
        runTool({"check", "--json", "waterworks.json", "--modbus", "waterworks.csv"}, {.folder = TOLVANE_SAMPLES});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.output,
              "waterworks.csv:308: HOLDING 00114 SIT_PLC_FW_ID: error: 7 registers for a tag of 16 characters, which "
              "takes 8 [bad-type]\n"
              "waterworks.csv:319: HOLDING 00402 INT_RIVER_TRUB_PV: error: no tag has this name; did you mean "
              "INT_RIVER_TURB_PV? [unknown-tag]\n"
              "waterworks.csv:326: HOLDING 00422 INT_RWM_FLOW_PV: error: the master may not write this tag: it has 1 "
              "element and needs 2 [bad-write]\n");
    EXPECT_EQ(run.errors, "tolvane-map: waterworks.csv: 3 errors, 0 warnings, 11 error marks in the editor\n");
}

TEST_F(Check, TouchesNoFile)
{
    check(wrongMap);
    EXPECT_EQ(runShell("ls -A; cat map.csv", here()).output, "map.csv\nplant.json\n" + wrongMap);
}
