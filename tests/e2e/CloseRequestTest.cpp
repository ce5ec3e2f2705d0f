// Windows are also closed from outside: by the window manager, a task bar, the end of the session.

#include "tests/e2e/SmallPlant.h"

namespace
{

using CloseRequest = SmallPlant;

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
    deleteFirstRow(program);
    ASSERT_TRUE(screen.requestClose("Modbus Map Editor"));
    EXPECT_EQ(program.waitForExit(), 0);
    EXPECT_EQ(FileState(map), before);
}
