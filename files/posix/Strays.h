#pragma once

#include "files/posix/FileSystemCalls.h"

#include <filesystem>

/// A stray's name beside `target` that nobody can foresee.
std::filesystem::path freshName(const std::filesystem::path& target);

/// Marks an open file as in use until it is closed, so that nobody clears it away.
void markInUse(FileSystemCalls& calls, int descriptor);

/// Removes the files in the target's folder that earlier writing to this target has left and that nobody has in use.
void clearStrays(FileSystemCalls& calls, const std::filesystem::path& target);
