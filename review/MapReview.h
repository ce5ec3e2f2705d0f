#pragma once

#include "review/Finding.h"
#include "source/TagTable.h"

#include <string>

/// Everything there is to say about the text of a definition file: what the editor marks, what it drops or changes in
/// silence, and what saving would write otherwise.
///
/// A map without any finding opens with no error, and saving it writes the same bytes.
/// @param bytes  the file's, in any encoding; moved in, they need not be copied
/// @param tags   the database that the map publishes from
/// @return by line, and for each line by rule
/// @throws std::bad_alloc when there is not enough memory
Findings reviewMap(std::string bytes, const TagTable& tags);
