#pragma once

#include "tool/ExitCode.h"
#include "tool/Options.h"

#include <string>
#include <variant>
#include <vector>

/// What the command line asks for; an exit code when it asked for help or made no sense, which has then been told.
using Request = std::variant<CheckOptions, DiffOptions, ExportOptions, ExitCode>;

/// Reads the command line. Help and version go to standard output, complaints to standard error.
/// @param arguments  what stands behind the program's name
Request readCommandLine(std::vector<std::string> arguments);
