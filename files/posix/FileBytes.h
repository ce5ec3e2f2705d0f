#pragma once

#include "files/posix/FileSystemCalls.h"

#include <optional>
#include <string>
#include <string_view>

/// Reads an open file from its start to its end.
/// @return nothing when the file may not be read or the disk fails; `errno` says which
std::optional<std::string> readAll(FileSystemCalls& calls, int descriptor);

/// Writes all of `bytes` from the start of an open file on. What the file holds after them stays.
/// @return false when some of them could not be written
bool writeAll(FileSystemCalls& calls, int descriptor, std::string_view bytes);
