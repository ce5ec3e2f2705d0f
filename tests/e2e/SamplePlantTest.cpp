// The sample plant, looked at and left as it was.

#include "tests/e2e/EndToEnd.h"
#include "tests/e2e/Patience.h"

namespace fs = std::filesystem;

namespace
{

/// Works on a copy of the sample plant.
class SamplePlant : public EndToEnd
{
protected:
    SamplePlant() : database(folder / "waterworks.json"), map(folder / "waterworks.csv")
    {
        fs::copy(fs::path(SAMPLES) / "waterworks.json", database);
        fs::copy(fs::path(SAMPLES) / "waterworks.csv", map);
    }

    fs::path database;
    fs::path map;
};

constexpr const char* sampleErrors = "  WARNING : 11 error(s) found in register map";

} // namespace

TEST_F(SamplePlant, LookingAtItLeavesWithoutAQuestionAndTheFileUntouched)
{
    const FileState before(map);
    ProgramUnderTest& program = open(database, map);
    program.waitForText(sampleErrors);
    program.waitForText("COMPRESSED");

    GridOnScreen grid = program.mapGrid();
    for (const char* const space : {"Show Status Registers", "Show Coil Registers", "Show Input Registers"})
    {
        const Picture lastSpace = grid.look();
        program.clickTool(space);
        EXPECT_TRUE(waitFor([&] { return grid.look() != lastSpace; })) << space;
    }

    program.clickTool("Toggle view");
    program.waitForText("EXPANDED");
    grid.select(0);
    screen.pressKey("space");
    program.waitForText("ALL");
    screen.pressKey("space");
    program.waitForText("COMPRESSED");
    program.waitForText(sampleErrors);

    leaveWithoutQuestion();
    EXPECT_EQ(FileState(map), before);
}
