#pragma once

#include "files/posix/FileSystemCalls.h"

#include <filesystem>
#include <optional>

/// Follows symbolic links by name, also to where nothing exists yet.
/// @return the first name that is not a link, or nothing when the links cannot be read or are too many
std::optional<std::filesystem::path> linkedFile(FileSystemCalls& calls, std::filesystem::path path);
