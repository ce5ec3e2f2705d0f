#pragma once

#include "map/RegisterMap.h"
#include "review/UnsizedTexts.h"
#include "source/TagDatabase.h"

#include <optional>
#include <string>
#include <string_view>

/// Reading what the command line names. What cannot be read is told on standard error.

/// The bytes of a file, pipe or device; `standardStream` is standard input.
/// @return nothing when it cannot be read, which has then been told
std::optional<std::string> readInput(const std::string& path);

/// What messages call a path: as given, and standard input by its name.
std::string shownPath(const std::string& path);

/// Reads a tag database.
/// @param path  empty for a database without tags
/// @return false when it cannot be used, which has then been told
bool readDatabase(const std::string& path, TagDatabase& database);

/// Reads a map as the editor does, in any encoding, and tells how many lines were dropped; blank ones are no loss and
/// not counted.
/// @param path     `standardStream` for standard input
/// @param tags     size the texts whose lines give no length
/// @param map      gets the objects over whatever it holds
/// @param unsized  gets the texts whose length neither their line nor the tags tell
/// @return false when it cannot be read, which has then been told; `map` and `unsized` are then as before
bool readMap(const std::string& path, const TagTable& tags, RegisterMap& map, UnsizedTexts& unsized);

/// Tells that the length of some texts is not known, and why.
/// @param databasePath  empty for none
/// @param consequence   what is done with them
void tellUnsized(const std::string& databasePath, std::string_view consequence);
