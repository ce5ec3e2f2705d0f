#pragma once

#include "files/posix/FileSystemCalls.h"

/// The open file that is to be replaced, and what it is like.
struct OldFile
{
    int descriptor = -1;
    struct stat state = {};
};

/// Gives a fresh file the owner, permissions and attributes of the one that it replaces.
///
/// The permissions come last: until then only the user may open a file made with the mode 600.
/// @return false when that would let in other people than before, shut some out or lose an attribute
bool takeOverAccess(FileSystemCalls& calls, int descriptor, const OldFile& old);
