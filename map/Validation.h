#pragma once

#include "map/RegisterMap.h"
#include "source/TagTable.h"

/// Recomputes `tagIndex`, `typeValid` and `writeValid` of every used slot from the tag table.
///
/// Nothing else is changed and nothing else is looked at: locks, overlaps, spaces and byte order are not errors.
/// Validation runs only when a command asks for it; the marks stay as they are in between.
void validateMap(RegisterMap& map, const TagTable& tags);

/// Number of error marks over all used slots of all spaces; every register of an object counts separately.
int countErrors(const RegisterMap& map);
