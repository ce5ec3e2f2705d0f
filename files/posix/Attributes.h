#pragma once

#include "files/posix/FileSystemCalls.h"

/// Gives a fresh file the access list and all other extended attributes of the one that it replaces.
///
/// An access list that the folder has given to the fresh file goes when the old one has none. What the system itself
/// works out from the contents (checksums, a program's capabilities) is left to it.
/// @param from  the old file's descriptor
/// @param to    the fresh file's descriptor
/// @return false when the fresh file is not like the old one
bool takeOverAttributes(FileSystemCalls& calls, int from, int to);
