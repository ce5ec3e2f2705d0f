#pragma once

#include <wx/string.h>

class wxCmdLineParser;

/// What the command line says; an option that is not given leaves its value as it is here.
struct StartupValues
{
    wxString databasePath;   ///< tag database, a JSON file; empty when not given
    wxString definitionPath; ///< map definition file; empty when not given
    long swapFlags = 0;      ///< default byte order of float tags: bit 1 bytes, bit 2 words, bit 3 longs
};

/// Declares the program's own options: -d/--json, -m/--modbus and -s/--swap.
void describeOptions(wxCmdLineParser& parser);

/// Takes the options that were given into the start-up values; an absent option leaves its value untouched.
void takeOptions(const wxCmdLineParser& parser, StartupValues& values);
