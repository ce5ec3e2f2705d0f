#pragma once

#include "files/posix/FileSystemCalls.h"

#include <string_view>

/// Writes `bytes` over the contents of an open file, once the disk has promised the room by which it grows.
///
/// The old contents are kept in memory meanwhile and put back when the disk fails. Only a file that may not be read, a
/// disk that fails for good, a power cut or the end of the program can leave a mixture.
/// @param descriptor  of a regular file, open for writing, and preferably for reading too
/// @return false when the file does not hold the new bytes
bool rewriteInPlace(FileSystemCalls& calls, int descriptor, std::string_view bytes);
