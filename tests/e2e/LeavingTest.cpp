// What becomes of the definition file when the program is left.

#include "tests/e2e/Patience.h"
#include "tests/e2e/SmallPlant.h"

namespace fs = std::filesystem;

namespace
{

constexpr const char* firstTag = "HOLDING,00000,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n";
constexpr const char* saveTitle = "Save map definition file";

class Leaving : public SmallPlant
{
protected:
    /// Copies the database's first tag into an empty map.
    static void appendFirstTag(ProgramUnderTest& program)
    {
        ASSERT_EQ(program.mapGrid().filledRows(), 0);
        program.tagGrid().select(0);
        program.clickTool("Copy - ctrl c");
        program.clickTool("Append to block");
        ASSERT_TRUE(waitFor([&] { return program.mapGrid().filledRows() == 1; }));
    }
};

} // namespace

TEST_F(Leaving, WithChangesAndYesSavesThem)
{
    deleteFirstRow(openMap(twoObjects));
    leaveAnswering("Yes");
    EXPECT_EQ(savedMap(), secondObject);
    EXPECT_FALSE(fs::exists(map.string() + "~"));
}

TEST_F(Leaving, WithChangesAndNoLeavesTheFileUntouched)
{
    ProgramUnderTest& program = openMap(twoObjects);
    const FileState before(map);
    deleteFirstRow(program);
    leaveAnswering("No");
    EXPECT_EQ(FileState(map), before);
}

TEST_F(Leaving, SavingGoesThroughASymbolicLinkAndKeepsIt)
{
    fs::create_directories(folder / "elsewhere");
    const fs::path target = folder.write("elsewhere/real.csv", twoObjects);
    fs::create_symlink(target, map);
    deleteFirstRow(open(database, map));
    leaveAnswering("Yes");
    EXPECT_TRUE(fs::is_symlink(map));
    EXPECT_EQ(contentOf(target), secondObject);
}

TEST_F(Leaving, AWriteProtectedFileStaysAsItIsAndTheProgramEndsAllTheSame)
{
    obeyWriteProtection();
    ProgramUnderTest& program = openMap(twoObjects);
    fs::permissions(map, fs::perms::owner_read);
    const FileState before(map);
    deleteFirstRow(program);
    leaveAnswering("Yes");
    EXPECT_EQ(FileState(map), before);
}

TEST_F(Leaving, SavingOverADatabaseGivenAsMapByMistakeKeepsItsBytesBesideIt)
{
    const std::string old = contentOf(database);
    appendFirstTag(open(database, database));
    leaveAnswering("Yes");
    EXPECT_EQ(contentOf(database), firstTag);
    EXPECT_EQ(contentOf(database.string() + "~"), old);
}

TEST_F(Leaving, WithoutAnyFileNameSavingAsksForOneAndCancellingThatGoesBackToTheMap)
{
    ProgramUnderTest& program = start({"-d", database.string()});
    program.waitForMainWindow();
    appendFirstTag(program);
    program.clickTool("Exit without saving");
    program.clickButton(program.waitForMessage("Save changes ?", "Confirmation"), "Yes");
    program.clickButton(program.waitForWindow(saveTitle), "Cancel");
    program.waitUntilClosed(saveTitle);

    program.clickTool("Exit without saving");
    program.clickButton(program.waitForMessage("Save changes ?", "Confirmation"), "Yes");
    const Control chooser = program.waitForWindow(saveTitle);
    program.typeInto(chooser, "Name:", map.string());
    screen.pressKey("Return");
    EXPECT_EQ(program.waitForExit(), 0);
    EXPECT_EQ(savedMap(), firstTag);
}

TEST_F(Leaving, AMapWithoutAFileIsWrittenToTheNameItWasStartedWith)
{
    ProgramUnderTest& program = open(database, map);
    appendFirstTag(program);
    leaveAnswering("Yes");
    EXPECT_EQ(savedMap(), firstTag);
}
