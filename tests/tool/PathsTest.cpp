// Paths and names in any alphabet, on every system.

#include "files/ReadFile.h"
#include "tests/core/TempFolder.h"
#include "tests/tool/ToolRun.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace
{

/// The bytes of a literal, which the program takes and writes.
std::string bytesOf(std::u8string_view text)
{
    return {text.begin(), text.end()};
}

class Paths : public testing::Test
{
protected:
    Paths() { std::filesystem::create_directory(folder / place); }

    /// Makes a file in a folder with a name like its own.
    /// @return the path that an argument gives
    std::string write(const std::u8string& name, std::string_view contents) const
    {
        return bytesOf(folder.write(place / name, contents).u8string());
    }

    /// Where a file would lie.
    std::filesystem::path at(const std::u8string& name) const { return folder / place / name; }

    TempFolder folder;

private:
    const std::filesystem::path place = u8"Gr\u00fcn \u03a9 \u6c34";
};

const std::string pump = bytesOf(u8"P\u00dcMP_SPEED");
const std::string database = R"({"structure":[{"lable":"Plant"}],"database":[
    {"Name":")" + pump + R"(","Type":"Numeric","Size":4,"Elements":2}]})";
const std::string soundLine = "HOLDING,00100,NONE,FLOAT," + pump + ",Speed,2,UNLOCKED,OK\n";
const std::string misspeltLine = "HOLDING,00100,NONE,FLOAT," + pump + "S,Speed,2,UNLOCKED,OK\n";

constexpr const char8_t* mapName = u8"Pr\u00fcfstand \u03a9 \u6c34.csv";

/// As files of every system hold it.
std::string withoutCarriageReturns(std::string text)
{
    std::erase(text, '\r');
    return text;
}

} // namespace

TEST_F(Paths, OfMapAndDatabaseMayHoldAnyLettersAndAreShownAsTheyAre)
{
    const std::string map = write(mapName, misspeltLine);
    const ToolRun run =
        runTool({"check", "--json", write(u8"Anl\u00e4ge.json", database), "--modbus", map, "--warnings", "off"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(withoutCarriageReturns(run.output), map + ":1: HOLDING 00100 " + pump +
                                                      "S: error: no tag has this name; did you mean " + pump +
                                                      "? [unknown-tag]\n");
    EXPECT_EQ(withoutCarriageReturns(run.errors),
              "tolvane-map: " + map + ": 1 error, 0 warnings, 2 error marks in the editor\n");
}

TEST_F(Paths, OfComparedMapsMayHoldAnyLetters)
{
    const ToolRun run = runTool({"diff", write(mapName, soundLine), write(u8"\u00e4lter.csv", "")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.output.starts_with("- HOLDING 00100 " + pump + ": removed")) << run.output;
}

TEST_F(Paths, OfExportsMayHoldAnyLettersAndAreNotThoseOfTheMap)
{
    const std::string map = write(mapName, soundLine);
    const std::string exported = bytesOf(at(u8"\u00dcbersicht.csv").u8string());
    EXPECT_EQ(runTool({"export", "--modbus", map, "--output", exported}).errors, "");
    EXPECT_NE(readFile(at(u8"\u00dcbersicht.csv")).value_or("").find(pump), std::string::npos);
    const ToolRun overMap = runTool({"export", "--modbus", map, "--output", map});
    EXPECT_EQ(overMap.exitCode, 2);
    EXPECT_EQ(withoutCarriageReturns(overMap.errors), "tolvane-map: " + map + ": is read from and not written over\n");
    EXPECT_EQ(readFile(at(mapName)), soundLine);
}

TEST_F(Paths, OfMissingFilesAreShownAsTheyAre)
{
    const std::string missing = bytesOf(at(u8"f\u00e9hlt.csv").u8string());
    const ToolRun run = runTool({"diff", missing, missing});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(run.errors.starts_with("tolvane-map: " + missing + ": cannot be read: ")) << run.errors;
}

TEST_F(Paths, InArgumentsAreTakenWholeWithTheirBlanksAndQuotes)
{
    const ToolRun run = runTool({"check", "--json", write(u8"plant.json", database), "--modbus",
                                 write(mapName, misspeltLine), "--name", "a \"quoted\" n\u00e4me\\"});
    EXPECT_TRUE(run.output.starts_with("a \"quoted\" n\u00e4me\\:1: ")) << run.output;
}
