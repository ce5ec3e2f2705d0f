#pragma once

#include "map/RegisterMap.h"
#include "review/UnsizedTexts.h"
#include "source/TagDatabase.h"

#include <optional>
#include <string>

/// Reading what the command line names. What cannot be read is told on standard error.

/// The bytes of a file, pipe or device; "-" is standard input.
/// @return nothing when it cannot be read, which has then been told
std::optional<std::string> readInput(const std::string& path);

/// What messages call a path: as given, and standard input by its name.
std::string shownPath(const std::string& path);

/// Reads a tag database.
/// @param path  empty for a database without tags
/// @return false when it cannot be used, which has then been told
bool readDatabase(const std::string& path, TagDatabase& database);

/// Reads a map as the editor does and tells how many lines it dropped.
/// @param unsized  gets the texts whose length only a database would tell, when there is none; may be null
/// @return false when it cannot be read, which has then been told
bool readMap(const std::string& path, const TagTable& tags, RegisterMap& map, UnsizedTexts* unsized = nullptr);
