#pragma once

#include <filesystem>
#include <optional>
#include <streambuf>
#include <string>

/// Reads a whole file as bytes.
///
/// Only existing regular files are read, symbolic links followed; opening a pipe or a device could wait for ever.
/// @return the bytes up to where the file ends while it is read, or nothing when it is missing, not a regular
///         file, unreadable or larger than the memory
std::optional<std::string> readFile(const std::filesystem::path& path);

/// Appends what is left of an open file or stream.
/// @throws std::exception as the stream does, and when there is not enough memory
void appendRest(std::streambuf& file, std::string& bytes);
