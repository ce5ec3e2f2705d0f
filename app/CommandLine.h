#pragma once

#include "ui/StartupValues.h"

class wxCmdLineParser;

/// Declares the program's own options: -d/--json, -m/--modbus and -s/--swap.
void describeOptions(wxCmdLineParser& parser);

/// Takes the options that were given into the start-up values; an absent option leaves its value untouched.
void takeOptions(const wxCmdLineParser& parser, StartupValues& values);
