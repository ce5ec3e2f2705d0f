#include "files/ReadFile.h"
#include "map/DefinitionFile.h"
#include "map/MapExport.h"
#include "tests/core/TempFolder.h"
#include "tests/tool/ToolRun.h"

#include <gtest/gtest.h>

namespace
{

const std::string tool = TOLVANE_MAP " ";
const std::string database = R"({"structure":[{"lable":"P"}],"database":[{"Name":"T","Type":"String","Size":8}]})";
const std::string line = "HOLDING,00001,NONE,INT16,A,,1,UNLOCKED,OK\n";
const std::string samplePath = TOLVANE_SAMPLES "/waterworks.csv";

/// The sample plant as the editor exports it.
std::string exported(std::string (*format)(const RegisterMap&))
{
    RegisterMap map;
    EXPECT_TRUE(isLoaded(loadDefinitionFile(samplePath, map, {})));
    return format(map);
}

class Export : public testing::Test
{
protected:
    Surroundings here() const { return {.folder = folder.path().string()}; }

    std::string contents(const std::string& name) const { return readFile(folder / name).value_or("no file"); }

    TempFolder folder;
};

} // namespace

TEST_F(Export, WritesTheEditorsBytesInTheFormatThatTheNameAsksFor)
{
    EXPECT_EQ(runTool({"export", "--modbus", samplePath, "-o", "map.CSV"}, here()).exitCode, 0);
    EXPECT_EQ(contents("map.CSV"), exported(exportCsv));
    EXPECT_EQ(runTool({"export", "--modbus", samplePath, "-o", "map.csv.txt"}, here()).exitCode, 0);
    EXPECT_EQ(contents("map.csv.txt"), exported(exportTextReport));
}

TEST_F(Export, WritesToStandardOutputAndNothingElse)
{
    const ToolRun run = runTool({"export", "--modbus", samplePath, "-o", "-"}, here());
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, exported(exportTextReport));
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(runShell("ls -A", here()).output, "");
}

TEST_F(Export, WritesTheFormatThatItIsTold)
{
    EXPECT_EQ(runTool({"export", "-m", samplePath, "-o", "-", "--format", "csv"}, here()).output, exported(exportCsv));
    runTool({"export", "-m", samplePath, "-o", "map.csv", "--format", "text"}, here());
    EXPECT_EQ(contents("map.csv"), exported(exportTextReport));
}

TEST_F(Export, SizesTextsByTheDatabaseThatItIsGiven)
{
    folder.write("plant.json", database);
    Surroundings surroundings = here();
    surroundings.input = "HOLDING,1,NONE,STRING,T,Text\n";
    EXPECT_EQ(runTool({"export", "-d", "plant.json", "-m", "-", "-o", "-", "--format", "csv"}, surroundings).output,
              "SECTION,ADDRESS,TYPE,REG_COUNT,BYTE_ORDER,TAGNAME,DESCRIPTION\nHOLDING,00001,STRING,4,---,T,Text\n");
}

TEST_F(Export, SaysThatItDoesNotKnowTheLengthOfATextAndCountsOneRegister)
{
    folder.write("map.csv", "HOLDING,1,NONE,STRING,T,Text\n");
    const ToolRun run = runTool({"export", "-m", "map.csv", "-o", "-", "--format", "csv"}, here());
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, "SECTION,ADDRESS,TYPE,REG_COUNT,BYTE_ORDER,TAGNAME,DESCRIPTION\n"
                          "HOLDING,00001,STRING,1,---,T,Text\n");
    EXPECT_EQ(run.errors, "tolvane-map: there are texts whose lines give no length, and --json is not given: written "
                          "with one register\n");
}

TEST_F(Export, NeverWritesOverWhatItReadsByWhateverName)
{
    folder.write("plant.json", database);
    folder.write("map.csv", line);
    ASSERT_EQ(runShell("ln map.csv hard.csv; ln -s map.csv soft.csv; ln -s plant.json soft.json", here()).exitCode, 0);
    for (const std::string output : {"map.csv", "./map.csv", "hard.csv", "soft.csv", "plant.json", "soft.json"})
    {
        const ToolRun run = runTool({"export", "-m", "map.csv", "-d", "plant.json", "-o", output}, here());
        EXPECT_EQ(run.exitCode, 2) << output;
        EXPECT_EQ(run.errors, "tolvane-map: " + output + ": is read from and not written over\n");
    }
    EXPECT_EQ(contents("map.csv"), line);
    EXPECT_EQ(contents("plant.json"), database);
}

TEST_F(Export, NeverWritesOverTheFileBehindStandardInputNorIntoTheMapBehindStandardOutput)
{
    folder.write("map.csv", line);
    const ToolRun over = runShell(tool + "export -m - -o map.csv <map.csv", here());
    EXPECT_EQ(over.exitCode, 2);
    EXPECT_EQ(over.errors, "tolvane-map: map.csv: is read from and not written over\n");
    const ToolRun into = runShell(tool + "export -m map.csv -o - >>map.csv", here());
    EXPECT_EQ(into.exitCode, 2);
    EXPECT_EQ(into.errors, "tolvane-map: standard output: is read from and not written over\n");
    EXPECT_EQ(contents("map.csv"), line);
}

TEST_F(Export, WritesIntoPipesAndDevices)
{
    folder.write("map.csv", line);
    EXPECT_EQ(
        runShell("mkfifo pipe; cat pipe & " + tool + "export -m map.csv -o pipe --format csv; wait", here()).output,
        "SECTION,ADDRESS,TYPE,REG_COUNT,BYTE_ORDER,TAGNAME,DESCRIPTION\nHOLDING,00001,INT16,1,---,A,\n");
    EXPECT_EQ(runTool({"export", "-m", "map.csv", "-o", "/dev/null"}, here()).exitCode, 0);
    const ToolRun full = runTool({"export", "-m", "map.csv", "-o", "/dev/full"}, here());
    EXPECT_EQ(full.exitCode, 2);
    EXPECT_EQ(full.errors, "tolvane-map: /dev/full: cannot be written: No space left on device\n");
}

TEST_F(Export, EndsWithTwoWhenAFileCannotBeReadOrWritten)
{
    EXPECT_EQ(runTool({"export", "-m", "none.csv", "-o", "map.txt"}, here()).exitCode, 2);
    const ToolRun run = runTool({"export", "-m", samplePath, "-o", "none/map.txt"}, here());
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.errors, "tolvane-map: none/map.txt: cannot be written: No such file or directory\n");
    EXPECT_EQ(runTool({"export", "-m", samplePath, "-o", "."}, here()).errors,
              "tolvane-map: .: cannot be written: Is a directory\n");
    EXPECT_EQ(runShell("ls -A", here()).output, "");
}

TEST_F(Export, KeepsTheOldFileAndTellsTheReasonWhenItsSizeIsLimited)
{
    const std::string limited = "ulimit -f 8; " + tool + "export -m " + samplePath + " -o ";
    for (const std::string name : {"map.txt", "hard.txt"})
    {
        folder.write("map.txt", "old");
        runShell("ln -f map.txt hard.txt", here()); // more names than one: the file is rewritten in place
        const ToolRun run = runShell(limited + name, here());
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_EQ(run.errors, "tolvane-map: " + name + ": cannot be written: File too large\n");
        EXPECT_EQ(contents(name), "old");
        EXPECT_EQ(runShell("ls -A", here()).output, "hard.txt\nmap.txt\n");
        runShell("rm hard.txt", here());
    }
}
