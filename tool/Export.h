#pragma once

#include "tool/ExitCode.h"
#include "tool/Options.h"

/// Writes a map as the editor's export does, byte for byte.
/// @return Success, or Failed when a file cannot be read or written
ExitCode exportTo(const ExportOptions& options);
