#pragma once

#include "files/posix/FileSystemCalls.h"

/// Gives a fresh file the owner and permissions of the one that it replaces.
/// @return false when that would let in other people than before, or shut some out
bool takeOverAccess(FileSystemCalls& calls, int descriptor, const struct stat& old);
