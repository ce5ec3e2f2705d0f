#pragma once

#include "files/OldBytes.h"
#include "files/posix/FileSystemCalls.h"

/// As the function without `calls`, through the given calls to the system.
bool keepOldBytes(const std::filesystem::path& path, FileSystemCalls& calls);
