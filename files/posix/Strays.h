#pragma once

#include "files/posix/FileSystemCalls.h"

#include <filesystem>

/// A file being written has a name of its own for a moment before it takes that of its target. The end of the program
/// in that moment leaves a stray, which the next writing to the same target clears away.

/// A name beside `target` for a file that is to take its place: ".saving-", sixteen hexadecimal digits that stand for
/// the target's name, "-", and sixteen that nobody can foresee. Short, whatever the length of the target's own name.
std::filesystem::path strayName(const std::filesystem::path& target);

/// Marks an open file as in use until it is closed, so that nobody clears it away.
void markInUse(FileSystemCalls& calls, int descriptor);

/// Removes the files in the target's folder that earlier writing to this target has left and that nobody has in use.
void clearStrays(FileSystemCalls& calls, const std::filesystem::path& target);
