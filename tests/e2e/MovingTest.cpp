// Registers moved, shoved and compressed with keys and buttons.

#include "tests/e2e/SmallPlant.h"

namespace
{

using Moving = SmallPlant;

constexpr const char* threeObjects = "HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                     "HOLDING,00011,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n"
                                     "HOLDING,00015,NONE,INT16,PUMP2_RUN,Pump 2 runs,1,UNLOCKED,OK\n";

} // namespace

TEST_F(Moving, EveryKeyMovesTheSelectionWhichStaysSelected)
{
    ProgramUnderTest& program = openMap(threeObjects);
    program.mapGrid().select(2);
    // From 15: up to 14 and 13; up against the FLOAT, in vain; with it up to 12; and down twice to 14.
    screen.pressKey("minus");
    screen.pressKey("KP_Subtract");
    screen.pressKey("minus");
    screen.pressKey("minus", Modifier::Control);
    screen.pressKey("equal");
    screen.pressKey("KP_Add", Modifier::Control);
    leaveAnswering("Yes");
    EXPECT_EQ(savedMap(), "HOLDING,00009,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                          "HOLDING,00010,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n"
                          "HOLDING,00014,NONE,INT16,PUMP2_RUN,Pump 2 runs,1,UNLOCKED,OK\n");
}

TEST_F(Moving, TheButtonsMoveAsTheKeysDo)
{
    ProgramUnderTest& program = openMap(threeObjects);
    program.mapGrid().select(1);
    program.clickTool("Move registers down");
    program.clickTool("Move registers down");
    program.clickTool("Shove registers down");
    program.clickTool("Move registers up");
    program.mapGrid().select(0);
    program.clickTool("Shove registers up");
    leaveAnswering("Yes");
    EXPECT_EQ(savedMap(), "HOLDING,00009,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                          "HOLDING,00013,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n"
                          "HOLDING,00016,NONE,INT16,PUMP2_RUN,Pump 2 runs,1,UNLOCKED,OK\n");
}

TEST_F(Moving, AShoveThatMeetsALockMovesNothing)
{
    ProgramUnderTest& program = openMap("HOLDING,00018,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                        "HOLDING,00019,NONE,INT16,PUMP2_RUN,Pump 2 runs,1,UNLOCKED,OK\n"
                                        "HOLDING,00020,NONE,INT16,PUMP_RUN,Pump runs,1,LOCKED,OK\n");
    program.mapGrid().select(0);
    // Down against the lock, in vain; the way up is free.
    screen.pressKey("equal", Modifier::Control);
    screen.pressKey("minus", Modifier::Control);
    leaveAnswering("Yes");
    EXPECT_EQ(savedMap(), "HOLDING,00017,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                          "HOLDING,00019,NONE,INT16,PUMP2_RUN,Pump 2 runs,1,UNLOCKED,OK\n"
                          "HOLDING,00020,NONE,INT16,PUMP_RUN,Pump runs,1,LOCKED,OK\n");
}

TEST_F(Moving, CompressClosesTheGapsOfTheSelectedRange)
{
    ProgramUnderTest& program = openMap("HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                        "HOLDING,00014,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n"
                                        "HOLDING,00020,NONE,INT16,PUMP2_RUN,Pump 2 runs,1,UNLOCKED,OK\n"
                                        "HOLDING,00030,NONE,FLOAT,PUMP2_SPEED,Speed 2,2,UNLOCKED,OK\n");
    GridOnScreen grid = program.mapGrid();
    grid.select(0);
    grid.select(2, Modifier::Shift);
    EXPECT_EQ(grid.selectedRows(), (std::vector<int>{0, 1, 2}));
    program.clickTool("Compress registers into contiguous block");
    leaveAnswering("Yes");
    EXPECT_EQ(savedMap(), "HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                          "HOLDING,00011,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n"
                          "HOLDING,00013,NONE,INT16,PUMP2_RUN,Pump 2 runs,1,UNLOCKED,OK\n"
                          "HOLDING,00030,NONE,FLOAT,PUMP2_SPEED,Speed 2,2,UNLOCKED,OK\n");
}

TEST_F(Moving, CompressOfARangeWithALockIsRefusedAndNothingChanges)
{
    ProgramUnderTest& program = openMap("HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                        "HOLDING,00014,NONE,FLOAT,PUMP_SPEED,Speed,2,LOCKED,OK\n"
                                        "HOLDING,00020,NONE,INT16,PUMP2_RUN,Pump 2 runs,1,UNLOCKED,OK\n");
    GridOnScreen grid = program.mapGrid();
    grid.select(0);
    grid.select(2, Modifier::Shift);
    program.chooseFromMenu(grid, 1, "Compress");
    program.clickButton(
        program.waitForMessage("This action can not be completed as the selected range contains locked registers"),
        "OK");
    leaveWithoutQuestion();
}
