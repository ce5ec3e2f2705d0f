#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// Reads one entry of a key file, which stands for a registry key on systems that have no registry.
///
/// An entry is a line "Name=value". The value is what follows, byte for byte: quotes, backslashes, dollars and blanks
/// mean nothing, so that a folder of any name can be given. Entries stand before the first line that begins with "[";
/// those of groups, which begin there, are others. Lines of any other form count for nothing. The first entry of a name
/// counts.
/// @param name  in the letter case of the file
/// @return the value, empty when there is no such entry; nothing when the file is missing or cannot be read
std::optional<std::string> readKeyFileEntry(const std::filesystem::path& path, std::string_view name);
