// From the tag database into the map and into the file.

#include "tests/e2e/Patience.h"
#include "tests/e2e/SmallPlant.h"

namespace
{

using Placing = SmallPlant;

/// The swap value that sets the bytes flag alone.
constexpr const char* swapBytes = "2";

} // namespace

TEST_F(Placing, FilteredTagsCopiedAndPastedInFrontOfARegisterAreSaved)
{
    ProgramUnderTest& program = openMap("HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                        "HOLDING,00014,NONE,INT16,PUMP2_RUN,Pump 2 runs,1,UNLOCKED,OK\n"
                                        "HOLDING,00020,NONE,INT16,PUMP_RUN.1,Pump runs,1,LOCKED,OK\n",
                                        {"--swap", swapBytes});
    GridOnScreen tags = program.tagGrid();
    GridOnScreen registers = program.mapGrid();
    EXPECT_EQ(tags.filledRows(), 6);
    program.typeFilter("tank");
    ASSERT_TRUE(waitFor([&] { return tags.filledRows() == 2; }));

    tags.select(0);
    screen.pressKey("a", Modifier::Control);
    ASSERT_TRUE(waitFor([&] { return tags.selectedRows() == std::vector<int>{0, 1}; }));
    screen.pressKey("c", Modifier::Control);
    registers.select(1);
    screen.pressKey("v", Modifier::Control);
    ASSERT_TRUE(waitFor([&] { return registers.filledRows() == 5; }));

    leaveAnswering("Yes");
    EXPECT_EQ(savedMap(), "HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                          "HOLDING,00014,BYTES,FLOAT,TANK_LEVEL,Level,2,UNLOCKED,OK\n"
                          "HOLDING,00016,NONE,STRING,TANK_NAME,Name,3,UNLOCKED,OK\n"
                          "HOLDING,00019,NONE,INT16,PUMP2_RUN,Pump 2 runs,1,UNLOCKED,OK\n"
                          "HOLDING,00020,NONE,INT16,PUMP_RUN.1,Pump runs,1,LOCKED,OK\n");
}

TEST_F(Placing, WithoutRoomBeforeALockThePasteIsRefusedAndNothingChanges)
{
    ProgramUnderTest& program = openMap("HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                        "HOLDING,00012,NONE,INT16,PUMP2_RUN,Pump 2 runs,1,LOCKED,OK\n");
    GridOnScreen registers = program.mapGrid();
    program.typeFilter("LEVEL");
    ASSERT_TRUE(waitFor([&] { return program.tagGrid().filledRows() == 1; }));
    program.tagGrid().select(0);
    program.clickTool("Copy - ctrl c");
    registers.select(0);
    screen.pressKey("v", Modifier::Control);
    program.clickButton(program.waitForMessage("Cannot paste here - there is not enough room before reaching either "
                                               "a locked register or the end of the register space"),
                        "OK");
    leaveWithoutQuestion();
}
