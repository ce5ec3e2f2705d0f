#pragma once

#include "map/DefinitionReader.h"
#include "review/Finding.h"
#include "review/PlacedLine.h"

/// Appends an error for each word of a placed line that the editor does not know and reads as something else without a
/// message: an unknown type, an unknown word in the byte order, an unknown lock.
/// @param line    as the reader tells it
/// @param placed  the same line; its object says what the words are read as
void appendWordFindings(Findings& findings, const DefinitionFileLine& line, const PlacedLine& placed);
