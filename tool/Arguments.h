#pragma once

#include <string>
#include <vector>

/// What stands behind the program's name on the command line: UTF-8, or the bytes that were given where the system's
/// arguments are bytes.
/// @param argc  as `main` gets it, and `argv` too
std::vector<std::string> commandLineArguments(int argc, char** argv);
