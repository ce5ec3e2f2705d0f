// Pictures of dialogs and messages.

#include "tests/e2e/pictures/GuidePictures.h"
#include "tests/e2e/pictures/Studio.h"

void takeEditor(Studio& studio)
{
    ProgramUnderTest& program = studio.openSample();
    program.mapGrid().doubleClick(3);
    const Control text = program.waitForWindow("Holding register 00114");
    program.typeInto(text, "Length", "8");
    studio.storeActiveWindow("editor-warning");
    program.typeInto(text, "Length", "80");
    studio.storeActiveWindow("editor-too-long");
    studio.screen.pressKey("Escape");
    program.waitUntilClosed("Holding register 00114");

    program.mapGrid().doubleClick(13);
    program.waitForWindow("Holding register 00400");
    studio.storeActiveWindow("editor");
}

void takeSettings(Studio& studio)
{
    ProgramUnderTest& program = studio.openSample("", {"--swap", "4"});
    program.clickTool("Settings and Defaults");
    program.waitForWindow("Settings");
    studio.storeActiveWindow("settings");
}

void takeReplace(Studio& studio)
{
    ProgramUnderTest& program = studio.openSample();
    program.mapGrid().select(14);
    program.clickTool("Tagname search and replace");
    const Control dialog = program.waitForWindow("Tagname Search and Replace");
    program.typeInto(dialog, "Find in Tagname", "TRUB");
    program.typeInto(dialog, "Replace with", "TURB");
    studio.storeActiveWindow("replace");
}

void takeSaveQuestion(Studio& studio)
{
    ProgramUnderTest& program = studio.openSample();
    program.mapGrid().select(20);
    studio.screen.pressKey("Delete");
    program.clickTool("Exit without saving");
    program.waitForMessage("Save changes ?", "Confirmation");
    studio.storeActiveWindow("save-question");
}

void takePasteRefused(Studio& studio)
{
    ProgramUnderTest& program = studio.openSmall({{"00000", "INT16", "INT_P01_MODE_SP.1"},
                                                  {"00001", "FLOAT", "INT_P01_SPEED_SP.1", 2},
                                                  {"00003", "INT16", "INT_P01_TRIP_CODE"},
                                                  {"00005", "INT16", "INT_P01_DUTY_SP.1", 1, true}});
    program.mapGrid().select(1);
    studio.screen.pressKey("c", Modifier::Control);
    program.mapGrid().select(0);
    studio.screen.pressKey("v", Modifier::Control);
    program.waitForMessage("Cannot paste here - there is not enough room before reaching either a locked register or "
                           "the end of the register space");
    studio.storeActiveWindow("paste-refused");
}
