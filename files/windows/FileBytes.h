#pragma once

#include "files/windows/FileHandle.h"

#include <optional>
#include <string>
#include <string_view>

/// Reads an open file from its start to its end.
/// @return nothing when the disk fails
std::optional<std::string> readAll(HANDLE file);

/// Makes `bytes` the whole contents of an open file and waits until they are on the disk.
/// @return false when some of them could not be written
bool overwrite(HANDLE file, std::string_view bytes);

/// Writes `bytes` over the contents of an existing file, once the disk has promised the room by which it grows.
///
/// The old contents are kept in memory meanwhile and put back when the disk fails. Only a disk that fails for good, a
/// power cut or the end of the program can leave a mixture.
/// @return false when the file does not hold the new bytes
bool rewriteInPlace(const std::filesystem::path& path, std::string_view bytes);
