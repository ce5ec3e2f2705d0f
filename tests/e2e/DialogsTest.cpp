// The register editor and the replacement of texts in tagnames.

#include "tests/e2e/Patience.h"
#include "tests/e2e/SmallPlant.h"

#include <algorithm>

namespace
{

using Editor = SmallPlant;
using Replacement = SmallPlant;
using Settings = SmallPlant;

constexpr const char* threeObjects = "HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                     "HOLDING,00011,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n"
                                     "HOLDING,00014,NONE,INT16,PUMP_RUN,Pump runs,1,LOCKED,OK\n";

/// The names by which screen readers call what takes the keyboard, sorted.
std::vector<std::string> spokenNames(const Control& dialog)
{
    std::vector<std::string> names;
    for (const Control& control : dialog.findAll(
             [](const Control& candidate)
             {
                 const std::string role = candidate.role();
                 return role == "text" || role == "check box" || role == "push button";
             }))
        names.push_back(control.name());
    std::ranges::sort(names);
    return names;
}

using Names = std::vector<std::string>;

} // namespace

TEST_F(Editor, ItsControlsHaveNamesForScreenReaders)
{
    ProgramUnderTest& program = openMap("HOLDING,00010,NONE,DOUBLE,PUMP_RUN,Pump runs,4,UNLOCKED,OK\n");
    program.mapGrid().doubleClick(0);
    const Control editor = program.waitForWindow("Holding register 00010");
    EXPECT_EQ(spokenNames(editor), (Names{" ? ", "Cancel", "Description", "Ok", "Swap Bytes", "Swap Longs",
                                          "Swap Words", "Tagname", "Type", "Write"}));
    program.clickButton(editor, "Cancel");
    program.waitUntilClosed("Holding register 00010");
    leaveWithoutQuestion();
}

TEST_F(Settings, TheirBoxesHaveNamesForScreenReaders)
{
    ProgramUnderTest& program = openMap("");
    program.clickTool("Settings and Defaults");
    const Control settings = program.waitForWindow("Settings");
    EXPECT_EQ(spokenNames(settings), (Names{" ? ", "Cancel", "Float Bytes", "Float Words", "Integer Bytes", "Ok"}));
    program.clickButton(settings, "Cancel");
    program.waitUntilClosed("Settings");
    leaveWithoutQuestion();
}

TEST_F(Editor, ALongerTypeMovesTheFollowersDownAfterAWarning)
{
    ProgramUnderTest& program = openMap("HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                        "HOLDING,00011,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n"
                                        "HOLDING,00014,NONE,INT16,PUMP2_RUN,Pump 2 runs,1,UNLOCKED,OK\n");
    program.mapGrid().doubleClick(0);
    const Control editor = program.waitForWindow("Holding register 00010");
    program.typeInto(editor, "Type", "DOUBLE");
    program.tick(editor, "Write");
    program.typeInto(editor, "Description", "Hours the pump ran");
    program.waitForText("Insufficient space - registers will be moved down to create room");
    program.clickButton(editor, "Ok (see warning)");
    program.waitUntilClosed("Holding register 00010");
    leaveAnswering("Yes");
    EXPECT_EQ(savedMap(), "HOLDING,00010,NONE,DOUBLE,PUMP_RUN.1,Hours the pump ran,4,UNLOCKED,OK\n"
                          "HOLDING,00014,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n"
                          "HOLDING,00016,NONE,INT16,PUMP2_RUN,Pump 2 runs,1,UNLOCKED,OK\n");
}

TEST_F(Editor, WhatDoesNotFitBeforeALockCannotBeConfirmed)
{
    ProgramUnderTest& program = openMap(threeObjects);
    program.mapGrid().doubleClick(0);
    const Control editor = program.waitForWindow("Holding register 00010");
    program.typeInto(editor, "Type", "DOUBLE");
    program.waitForText("Insufficient space - please correct register type or size");
    screen.pressKey("Return");
    program.clickButton(editor, "Cancel");
    program.waitUntilClosed("Holding register 00010");
    leaveWithoutQuestion();
}

TEST_F(Replacement, RenamesTheSelectedObjectsThatAreNotLocked)
{
    ProgramUnderTest& program = openMap(threeObjects);
    program.mapGrid().select(0);
    screen.pressKey("a", Modifier::Control);
    program.clickTool("Tagname search and replace");
    const Control dialog = program.waitForWindow("Tagname Search and Replace");
    EXPECT_EQ(spokenNames(dialog), (Names{"Cancel", "Find in Tagname", "Replace", "Replace with"}));
    program.typeInto(dialog, "Find in Tagname", "PUMP");
    program.typeInto(dialog, "Replace with", "PUMP2");
    program.clickButton(dialog, "Replace");
    program.waitUntilClosed("Tagname Search and Replace");
    leaveAnswering("Yes");
    EXPECT_EQ(savedMap(), "HOLDING,00010,NONE,INT16,PUMP2_RUN,Pump runs,1,UNLOCKED,OK\n"
                          "HOLDING,00011,NONE,FLOAT,PUMP2_SPEED,Speed,2,UNLOCKED,OK\n"
                          "HOLDING,00014,NONE,INT16,PUMP_RUN,Pump runs,1,LOCKED,OK\n");
}
