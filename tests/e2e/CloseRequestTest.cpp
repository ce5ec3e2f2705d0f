// Windows are also closed from outside: by the window manager, a task bar, the end of the session.

#include "tests/e2e/Patience.h"
#include "tests/e2e/SmallPlant.h"

namespace
{

using CloseRequest = SmallPlant;

constexpr const char* twoObjects = "HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                   "HOLDING,00011,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n";

} // namespace

TEST_F(CloseRequest, WithoutChangesEndsTheProgramWithoutAQuestion)
{
    ProgramUnderTest& program = openMap(twoObjects);
    const FileState before(map);
    ASSERT_TRUE(screen.requestClose("Modbus Map Editor"));
    EXPECT_EQ(program.waitForExit(), 0);
    EXPECT_EQ(FileState(map), before);
}

TEST_F(CloseRequest, WithUnsavedChangesEndsTheProgramWithoutAQuestionAndWithoutSaving)
{
    ProgramUnderTest& program = openMap(twoObjects);
    const FileState before(map);
    GridOnScreen grid = program.mapGrid();
    ASSERT_EQ(grid.filledRows(), 2);
    grid.select(0);
    screen.pressKey("Delete");
    ASSERT_TRUE(waitFor([&] { return grid.filledRows() == 1; }));

    ASSERT_TRUE(screen.requestClose("Modbus Map Editor"));
    EXPECT_EQ(program.waitForExit(), 0);
    EXPECT_EQ(FileState(map), before);
}
