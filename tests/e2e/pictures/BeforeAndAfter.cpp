// Pictures that show a small map before and after a command.

#include "tests/e2e/pictures/GuidePictures.h"
#include "tests/e2e/pictures/Studio.h"

namespace
{

ProgramUnderTest& openThreeObjects(Studio& studio)
{
    return studio.openSmall({{"00000", "INT16", "INT_P01_MODE_SP.1"},
                             {"00001", "FLOAT", "INT_P01_SPEED_SP.1", 2},
                             {"00003", "INT16", "INT_P01_TRIP_CODE"}});
}

} // namespace

void takePaste(Studio& studio)
{
    ProgramUnderTest& program = openThreeObjects(studio);
    program.typeFilter("INT_P01_CURRENT_PV");
    program.tagGrid().select(0);
    studio.screen.pressKey("c", Modifier::Control);
    program.mapGrid().select(1);
    studio.storeBeforeAndAfter("paste", [&] { studio.screen.pressKey("v", Modifier::Control); });
}

void takeAppend(Studio& studio)
{
    ProgramUnderTest& program = openThreeObjects(studio);
    program.typeFilter("INT_P01_*_ALM");
    program.tagGrid().select(0);
    program.tagGrid().select(1, Modifier::Shift);
    studio.screen.pressKey("c", Modifier::Control);
    program.mapGrid().select(0);
    studio.storeBeforeAndAfter("append", [&] { program.clickTool("Append to block"); });
}

void takeShove(Studio& studio)
{
    ProgramUnderTest& program = openThreeObjects(studio);
    program.mapGrid().select(1);
    studio.storeBeforeAndAfter("shove", [&] { studio.screen.pressKey("equal", Modifier::Control); });
}

void takeCompress(Studio& studio)
{
    ProgramUnderTest& program = studio.openSmall({{"00000", "INT16", "INT_P01_MODE_SP.1"},
                                                  {"00002", "FLOAT", "INT_P01_SPEED_SP.1", 2},
                                                  {"00005", "INT16", "INT_P01_TRIP_CODE"},
                                                  {"00007", "INT16", "INT_P01_DUTY_SP.1"}});
    program.mapGrid().select(0);
    program.mapGrid().select(7, Modifier::Shift);
    studio.storeBeforeAndAfter("compress", [&] { program.clickTool("Compress registers into contiguous block"); });
}
