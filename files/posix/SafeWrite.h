#pragma once

#include "files/SafeWrite.h"
#include "files/posix/FileSystemCalls.h"

/// As the function without `calls`, through the given calls to the system.
bool writeFileSafely(const std::filesystem::path& path, std::string_view bytes, FileSystemCalls& calls);
