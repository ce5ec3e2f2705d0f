// Changes that are on no disk when the program ends are kept in the user's state folder.

#include "tests/e2e/SmallPlant.h"

#include <csignal>

namespace fs = std::filesystem;

namespace
{

constexpr int signalOffset = 128;

class Rescue : public SmallPlant
{
protected:
    /// Opens a map of two objects and deletes the first.
    ProgramUnderTest& openAndChange()
    {
        ProgramUnderTest& program = openMap(twoObjects);
        deleteFirstRow(program);
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
    obeyWriteProtection();
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
