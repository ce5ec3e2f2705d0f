#include "files/ReadFile.h"
#include "map/DefinitionFile.h"
#include "map/MapExport.h"
#include "tests/core/TempFolder.h"
#include "tests/tool/ToolRun.h"

#include <gtest/gtest.h>

namespace
{

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
    folder.write("plant.json", R"({"structure":[{"lable":"P"}],"database":[{"Name":"T","Type":"String","Size":8}]})");
    Surroundings surroundings = here();
    surroundings.input = "HOLDING,1,NONE,STRING,T,Text\n";
    EXPECT_EQ(runTool({"export", "-d", "plant.json", "-m", "-", "-o", "-", "--format", "csv"}, surroundings).output,
              "SECTION,ADDRESS,TYPE,REG_COUNT,BYTE_ORDER,TAGNAME,DESCRIPTION\nHOLDING,00001,STRING,4,---,T,Text\n");
}

TEST_F(Export, NeverWritesOverTheMapThatItReads)
{
    const std::string line = "HOLDING,00001,NONE,INT16,A,,1,UNLOCKED,OK\n";
    folder.write("map.csv", line);
    const ToolRun run = runTool({"export", "-m", "map.csv", "-o", "./map.csv"}, here());
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.errors, "tolvane-map: ./map.csv: is read from and not written over\n");
    EXPECT_EQ(contents("map.csv"), line);
}

TEST_F(Export, EndsWithTwoWhenAFileCannotBeReadOrWritten)
{
    EXPECT_EQ(runTool({"export", "-m", "none.csv", "-o", "map.txt"}, here()).exitCode, 2);
    const ToolRun run = runTool({"export", "-m", samplePath, "-o", "none/map.txt"}, here());
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.errors, "tolvane-map: none/map.txt: cannot be written: No such file or directory\n");
    EXPECT_EQ(runTool({"export", "-m", samplePath, "-o", "."}, here()).errors,
              "tolvane-map: .: cannot be written: it is a folder\n");
    EXPECT_EQ(runShell("ls -A", here()).output, "");
}
