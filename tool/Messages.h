#pragma once

#include "tool/ExitCode.h"

#include <string_view>

/// Writes a line on standard error, with the program's name in front.
void tell(std::string_view message);

/// Writes results on standard output.
/// @return `done`, or `Failed` when they could not be written, which has then been told
ExitCode put(std::string_view results, ExitCode done);
