#pragma once

#include "tool/ExitCode.h"
#include "tool/Options.h"

/// Judges a map by its tag database and writes what is wrong, one line for each finding; the counts go to standard
/// error.
/// @return Success without errors, Found with errors, Failed when a file cannot be read
ExitCode check(const CheckOptions& options);
