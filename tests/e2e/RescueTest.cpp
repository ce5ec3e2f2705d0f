// Changes that are on no disk when the program ends are kept in the user's state folder.

#include "tests/e2e/Patience.h"
#include "tests/e2e/SmallPlant.h"

#include <csignal>
#include <linux/capability.h>
#include <sys/prctl.h>

namespace fs = std::filesystem;

namespace
{

constexpr const char* twoObjects = "HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                   "HOLDING,00011,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n";
constexpr const char* secondObject = "HOLDING,00011,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n";

constexpr int signalOffset = 128;

class Rescue : public SmallPlant
{
protected:
    /// Opens a map of two objects and deletes the first.
    ProgramUnderTest& openAndChange()
    {
        ProgramUnderTest& program = openMap(twoObjects);
        GridOnScreen grid = program.mapGrid();
        grid.select(0);
        screen.pressKey("Delete");
        EXPECT_TRUE(waitFor([&] { return grid.filledRows() == 1; }));
        return program;
    }

    std::vector<fs::path> copies() const
    {
        std::vector<fs::path> found;
        std::error_code noFolder;
        for (const fs::directory_entry& entry :
             fs::directory_iterator(folder / "home" / "state" / "tolvane" / "rescue", noFolder))
            found.push_back(entry.path());
        return found;
    }

    /// The changed map lies in one copy, which the program has named, and its file is as it was.
    void expectRescued(const ProgramUnderTest& program) const
    {
        EXPECT_EQ(savedMap(), twoObjects);
        ASSERT_EQ(copies().size(), 1U);
        const fs::path copy = copies().front();
        EXPECT_EQ(contentOf(copy), secondObject);
        EXPECT_EQ(fs::status(copy).permissions(), fs::perms::owner_read | fs::perms::owner_write);
        EXPECT_NE(program.errorOutput().find(copy.string()), std::string::npos) << program.errorOutput();
    }

    void expectRescuedFrom(int signal)
    {
        ProgramUnderTest& program = openAndChange();
        program.sendSignal(signal);
        EXPECT_EQ(program.waitForExit(), signalOffset + signal);
        expectRescued(program);
    }
};

} // namespace

TEST_F(Rescue, KeepsWhatAClosedWindowLeavesUnsaved)
{
    ProgramUnderTest& program = openAndChange();
    ASSERT_TRUE(screen.requestClose("Modbus Map Editor"));
    EXPECT_EQ(program.waitForExit(), 0);
    expectRescued(program);
}

TEST_F(Rescue, KeepsWhatATerminatedProgramLeavesUnsaved)
{
    expectRescuedFrom(SIGTERM);
}

TEST_F(Rescue, KeepsWhatIsUnsavedWhenTheTerminalGoes)
{
    expectRescuedFrom(SIGHUP);
}

TEST_F(Rescue, KeepsWhatAnInterruptedProgramLeavesUnsaved)
{
    expectRescuedFrom(SIGINT);
}

TEST_F(Rescue, KeepsWhatIsUnsavedWhileAQuestionIsOpen)
{
    ProgramUnderTest& program = openAndChange();
    program.clickTool("Exit without saving");
    program.waitForMessage("Save changes ?", "Confirmation");
    program.sendSignal(SIGTERM);
    EXPECT_EQ(program.waitForExit(), signalOffset + SIGTERM);
    expectRescued(program);
}

TEST_F(Rescue, KeepsWhatIsUnsavedWhenTheScreenGoes)
{
    ProgramUnderTest& program = openAndChange();
    program.cutOffFromScreen();
    EXPECT_NE(program.waitForExit(), 0);
    expectRescued(program);
}

TEST_F(Rescue, KeepsWhatCannotBeSaved)
{
    // Root may write to write-protected files; the program is started without that power.
    prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE, 0, 0, 0);
    ProgramUnderTest& program = openAndChange();
    fs::permissions(map, fs::perms::owner_read);
    leaveAnswering("Yes");
    expectRescued(program);
}

TEST_F(Rescue, KeepsNothingOfChangesThatWereRefused)
{
    openAndChange();
    leaveAnswering("No");
    EXPECT_EQ(copies(), std::vector<fs::path>());
}

TEST_F(Rescue, KeepsNothingOfChangesThatWereSaved)
{
    openAndChange();
    leaveAnswering("Yes");
    EXPECT_EQ(savedMap(), secondObject);
    EXPECT_EQ(copies(), std::vector<fs::path>());
}

TEST_F(Rescue, KeepsNothingWhereNothingWasChanged)
{
    ProgramUnderTest& program = openMap(twoObjects);
    program.sendSignal(SIGTERM);
    EXPECT_EQ(program.waitForExit(), signalOffset + SIGTERM);
    EXPECT_EQ(copies(), std::vector<fs::path>());
}
