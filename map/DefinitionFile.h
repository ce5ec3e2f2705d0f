#pragma once

#include "map/RegisterMap.h"
#include "source/TagTable.h"

#include <filesystem>
#include <string>
#include <string_view>

/// The map's only persistent form: one comma-separated line per object, without header, quoting or escaping.

/// The nine fields of a definition line, as texts.
struct DefinitionFields
{
    std::string_view space;       ///< "COIL", "INPUT", "STATUS" or "HOLDING"
    std::string_view address;     ///< head's address, a base-10 integer
    std::string_view order;       ///< any of "BYTES", "WORDS", "LONGS" anywhere in it
    std::string_view type;        ///< type name
    std::string_view tagname;     ///< tagname, with ".1" behind it when the master may write
    std::string_view description; ///< read up to its first "{"
    std::string_view count;       ///< registers of a STRING, a base-10 integer
    std::string_view lock;        ///< locked when it begins with "LOCKED"
    std::string_view status;      ///< written for people, never read
};

/// Places the object that one line describes; later lines overwrite earlier ones, locked or not.
///
/// A line is dropped, silently, when its space is unknown, when its tagname holds a "." without ending in ".1", or
/// when its object has no registers. Registers outside 0..65535 are left out while the full count is kept. Byte-order
/// flags that the line does not name stay as the slot had them.
void parseDefinitionLine(RegisterMap& map, const DefinitionFields& fields);

/// Reads a definition file into the map; lines of 9, 7 or 6 fields count, all others are skipped.
/// @param tags  sizes the STRING objects of 6-field lines
/// @return false, with the map unchanged, when there is no such file or it cannot be read
bool loadDefinitionFile(const std::filesystem::path& path, RegisterMap& map, const TagTable& tags);

/// The whole map as the text of a definition file: UTF-8 without byte-order mark, native line ends.
std::string definitionText(const RegisterMap& map);

/// Writes the definition file so that a crash leaves the old or the new text, never half of one.
/// @return false when it could not be written
bool saveDefinitionFile(const std::filesystem::path& path, const RegisterMap& map);
