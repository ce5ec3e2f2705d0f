#pragma once

#include "source/TagDatabase.h"

#include <filesystem>
#include <string>
#include <string_view>

/// How loading ended: `Loaded`, or the first thing that was missing.
enum class LoadResult
{
    Loaded,
    FileNotFound,
    BadJson,
    StructureMissing,
    LableMissing,
    DatabaseMissing
};

/// Reads a tag database file: groups, then the structure tree, then the tags.
///
/// The first failure ends the load, and what was built before it stays: nothing is changed by `FileNotFound` and
/// `BadJson`; the groups are those of the file from `StructureMissing` on, the tree is from `DatabaseMissing` on.
/// Tags beyond 65,536 and structure nodes more than 1,000 levels below the root are left out.
/// @param path      any path; anything but a readable regular file counts as not found
/// @param database  receives what the file holds
LoadResult loadTagDatabase(const std::filesystem::path& path, TagDatabase& database);

/// The same for the bytes of a file, which are never `FileNotFound`.
LoadResult readTagDatabase(std::string bytes, TagDatabase& database);

/// What the user is told; the empty text for `Loaded`.
std::string_view loadMessage(LoadResult result);
