#pragma once

#include "files/windows/FileHandle.h"

#include <filesystem>
#include <string_view>

/// How putting a fresh file in the old one's place ended.
enum class Exchange
{
    Done,
    Refused, ///< the folder does not allow it, or the file is in use
    Failed   ///< the bytes did not get to the disk
};

/// The system's call by which one file takes the place of another.
using ReplaceCall = decltype(&::ReplaceFileW);

/// Writes `bytes` into a fresh file beside `target`, flushes it to the disk and lets it take the name.
///
/// A file that has the name already keeps its attributes and access rights. It stands under a name of its own, the
/// target's with ".old-" and a number after it, until the fresh one has taken its place, and is put back otherwise.
/// @param replace  the system's own; a test lets it stop half-way
/// @return anything but Done: the target is as it was
Exchange exchangeFile(const std::filesystem::path& target, bool targetExists, std::string_view bytes,
                      ReplaceCall replace = ::ReplaceFileW);

/// Makes a copy of `file`, attributes included, flushes it to the disk and lets it take the name `copy`.
/// @return false with a file of that name as it was
bool copyFile(const std::filesystem::path& file, const std::filesystem::path& copy);
