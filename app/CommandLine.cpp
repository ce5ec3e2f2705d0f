#include "app/CommandLine.h"

#include <wx/cmdline.h>

void describeOptions(wxCmdLineParser& parser)
{
    parser.AddOption("d", "json", "Path to of the database JSON file", wxCMD_LINE_VAL_STRING);
    parser.AddOption("m", "modbus", "Path to the modbus defintion file", wxCMD_LINE_VAL_STRING);
    parser.AddOption("s", "swap", "swap flags = (SwapBytes << 1) | (SwapWords << 2) | (SwapLongs << 3)",
                     wxCMD_LINE_VAL_NUMBER);
}

void takeOptions(const wxCmdLineParser& parser, StartupValues& values)
{
    parser.Found("d", &values.databasePath);
    parser.Found("m", &values.definitionPath);
    parser.Found("s", &values.swapFlags);
}
