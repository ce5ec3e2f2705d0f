// The options of the command line. Their texts in the usage message are fixed: "Path to of" and "defintion" are what
// the program says, and no slips to be mended here.

#include "app/CommandLine.h"

#include <wx/cmdline.h>

void describeOptions(wxCmdLineParser& parser)
{
    parser.AddOption("d", "json", "Path to of the database JSON file", wxCMD_LINE_VAL_STRING);
    parser.AddOption("m", "modbus", "Path to the modbus defintion file", wxCMD_LINE_VAL_STRING);
    // Bit 0 carries nothing; the three flags are the bits 1 to 3.
    parser.AddOption("s", "swap", "swap flags = (SwapBytes << 1) | (SwapWords << 2) | (SwapLongs << 3)",
                     wxCMD_LINE_VAL_NUMBER);
}

void takeOptions(const wxCmdLineParser& parser, StartupValues& values)
{
    // The toolkit knows an option by either of its names; asking for the short one finds both.
    parser.Found("d", &values.databasePath);
    parser.Found("m", &values.definitionPath);
    parser.Found("s", &values.swapFlags);
}
