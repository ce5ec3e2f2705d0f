#include "tests/e2e/SmallPlant.h"

#include "tests/e2e/Patience.h"

#include <linux/capability.h>
#include <sys/prctl.h>

SmallPlant::SmallPlant() : database(folder.write("plant.json", pumpDatabase)), map(folder / "map.csv") {}

ProgramUnderTest& SmallPlant::openMap(std::string_view lines, const std::vector<std::string>& furtherArguments)
{
    folder.write("map.csv", lines);
    return open(database, map, furtherArguments);
}

void SmallPlant::deleteFirstRow(ProgramUnderTest& program)
{
    GridOnScreen grid = program.mapGrid();
    const int rows = grid.filledRows();
    grid.select(0);
    screen.pressKey("Delete");
    ASSERT_TRUE(waitFor([&] { return grid.filledRows() == rows - 1; }));
}

void SmallPlant::obeyWriteProtection()
{
    prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE, 0, 0, 0);
}
