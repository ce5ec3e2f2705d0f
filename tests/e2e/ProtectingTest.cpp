// Locks, and the purge that they survive.

#include "tests/e2e/Patience.h"
#include "tests/e2e/SmallPlant.h"

namespace
{

using Locks = SmallPlant;
using Purge = SmallPlant;

constexpr const char* purgeButton = "Delete registers with errors";
constexpr const char* purgeQuestion =
    "This will delete all registers that contain an error.\nAre you sure you want to continue?";

/// An unknown tag over two registers, the same locked, and a writable register whose tag cannot be written.
constexpr const char* faultyMap = "COIL,00007,NONE,INT16,UNKNOWN,Nobody knows it,1,UNLOCKED,ERROR\n"
                                  "HOLDING,00010,NONE,FLOAT,UNKNOWN,Nobody knows it,2,UNLOCKED,ERROR\n"
                                  "HOLDING,00014,NONE,FLOAT,UNKNOWN,Nobody knows it,2,LOCKED,ERROR\n"
                                  "HOLDING,00020,NONE,FLOAT,PUMP_SPEED.1,Speed,2,UNLOCKED,ERROR\n"
                                  "HOLDING,00030,NONE,INT16,PUMP_RUN.1,Pump runs,1,UNLOCKED,OK\n";

} // namespace

TEST_F(Locks, ButtonAndMenuLockAndUnlockTheSelectedObjects)
{
    ProgramUnderTest& program = openMap("HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                        "HOLDING,00011,NONE,FLOAT,PUMP_SPEED,Speed,2,LOCKED,OK\n");
    GridOnScreen grid = program.mapGrid();
    grid.select(0);
    const Picture unlocked = grid.look();
    program.clickTool("Toggle register lock");
    ASSERT_TRUE(waitFor([&] { return grid.look() != unlocked; }));
    EXPECT_EQ(grid.selectedRows(), std::vector<int>{0});
    grid.select(1);
    program.chooseFromMenu(grid, 1, "Lock / Unlock");
    leaveAnswering("Yes");
    EXPECT_EQ(savedMap(), "HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,LOCKED,OK\n"
                          "HOLDING,00011,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n");
}

TEST_F(Purge, YesDeletesWhatIsInErrorInAllSpacesAndNotLocked)
{
    ProgramUnderTest& program = openMap(faultyMap);
    program.waitForText("  WARNING : 7 error(s) found in register map");
    program.clickTool(purgeButton);
    program.clickButton(program.waitForMessage(purgeQuestion, "Confirmation"), "Yes");
    program.waitForText("  WARNING : 2 error(s) found in register map");
    leaveAnswering("Yes");
    EXPECT_EQ(savedMap(), "HOLDING,00014,NONE,FLOAT,UNKNOWN,Nobody knows it,2,LOCKED,ERROR\n"
                          "HOLDING,00030,NONE,INT16,PUMP_RUN.1,Pump runs,1,UNLOCKED,OK\n");
}

TEST_F(Purge, EscapeAndNoLeaveEverythingAsItIs)
{
    ProgramUnderTest& program = openMap(faultyMap);
    program.clickTool(purgeButton);
    program.waitForMessage(purgeQuestion, "Confirmation");
    screen.pressKey("Escape");
    program.waitUntilClosed("Confirmation");
    program.clickTool(purgeButton);
    program.clickButton(program.waitForMessage(purgeQuestion, "Confirmation"), "No");
    program.waitUntilClosed("Confirmation");
    program.waitForText("  WARNING : 7 error(s) found in register map");
    leaveWithoutQuestion();
}
