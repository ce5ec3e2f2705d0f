#pragma once

#include "tool/ExitCode.h"
#include "tool/Options.h"

/// Compares two maps object by object and writes what differs, one line for each object; the counts go to standard
/// error.
/// @return Success when no object differs, Found when one does, LockedChanged when one of them was locked, Failed when
///         a file cannot be read. Under git it is Success for any difference: git takes all else for a crash
ExitCode diff(const DiffOptions& options);
