#include "tests/e2e/SmallPlant.h"

#include "tests/e2e/Patience.h"

#include <linux/capability.h>
#include <sys/prctl.h>

namespace
{

constexpr const char* databaseText = R"({
  "database_groups": [ { "mask": "1", "flag": "MEA", "type": "flag", "desc": "Measured values" } ],
  "structure": [ { "lable": "Plant", "dbprefix": "" } ],
  "database": [
    { "Name": "PUMP_RUN", "Description": "Pump runs", "Type": "Integer", "Size": 1, "Elements": 2, "Groups": 0 },
    { "Name": "PUMP2_RUN", "Description": "Pump 2 runs", "Type": "Integer", "Size": 1, "Elements": 2, "Groups": 0 },
    { "Name": "PUMP_SPEED", "Description": "Speed", "Type": "Numeric", "Size": 4, "Elements": 1, "Groups": 1 },
    { "Name": "PUMP2_SPEED", "Description": "Speed 2", "Type": "Numeric", "Size": 4, "Elements": 1, "Groups": 1 },
    { "Name": "TANK_LEVEL", "Description": "Level", "Type": "Numeric", "Size": 4, "Elements": 1, "Groups": 1 },
    { "Name": "TANK_NAME", "Description": "Name", "Type": "String", "Size": 5, "Elements": 1, "Groups": 0 }
  ]
}
)";

} // namespace

SmallPlant::SmallPlant() : database(write("plant.json", databaseText)), map(folder / "map.csv") {}

ProgramUnderTest& SmallPlant::openMap(std::string_view lines, const std::vector<std::string>& furtherArguments)
{
    write("map.csv", lines);
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
