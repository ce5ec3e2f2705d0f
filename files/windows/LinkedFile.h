#pragma once

#include "files/windows/FileHandle.h"

#include <filesystem>
#include <optional>

/// The file that an open one is, under the name that it has in its folder, links followed.
/// @return nothing when the system does not tell
std::optional<std::filesystem::path> linkedFile(const FileHandle& file);
