#pragma once

#include "map/RegisterMap.h"
#include "source/TagTable.h"

#include <filesystem>
#include <string>

/// The map's only persistent form: one comma-separated line per object, without header, quoting or escaping.

/// What became of reading a definition file.
enum class DefinitionLoad
{
    NoFile,     ///< there is none
    Unreadable, ///< there is one; the map has nothing of it
    Partial,    ///< it holds something that saving the map would not write back
    Whole       ///< saving the map would write back all of it
};

/// True when the map holds what the file says, as far as a map can.
constexpr bool isLoaded(DefinitionLoad load)
{
    return load == DefinitionLoad::Partial || load == DefinitionLoad::Whole;
}

/// Reads a definition file into the map; lines of 9, 7 or 6 fields count, all others are skipped.
/// @param tags  sizes the STRING objects of 6-field lines
/// @return NoFile or Unreadable with the map unchanged; also Unreadable when the file needs more memory than there is,
///         with the map empty. Line ends and the encoding of characters are no part of what a file holds
DefinitionLoad loadDefinitionFile(const std::filesystem::path& path, RegisterMap& map, const TagTable& tags);

/// Appends the line of an object, without a line end.
/// @param head  the slot at which the object begins
void appendDefinitionLine(std::string& text, RegisterSpace space, const RegisterEntry& head);

/// The whole map as the text of a definition file: UTF-8 without byte-order mark, native line ends.
/// @throws std::bad_alloc when there is not enough memory for it
std::string definitionText(const RegisterMap& map);

/// Writes the definition file so that a crash leaves the old or the new text, never half of one.
/// @return false when it could not be written
bool saveDefinitionFile(const std::filesystem::path& path, const RegisterMap& map);
