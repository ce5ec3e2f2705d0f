#pragma once

#include "map/DefaultByteOrder.h"
#include "map/RegisterEntry.h"
#include "source/TagTable.h"

#include <span>
#include <vector>

/// Turns database tags into registers for the clipboard, one object a tag, in the order listed.
///
/// An Integer tag becomes an INT16, a Numeric tag a FLOAT, a String tag a STRING of two characters a register; a String
/// tag of no characters adds no register. Positions are relative: every object starts at 0. A tag of any other type
/// code is taken as the tag converted before it was, or as an Integer tag when it is the first.
/// No more registers are made than the clipboard keeps.
/// @param tagIndices  indices of tags in the table; those that are negative or not below its count are passed over
std::vector<RegisterEntry> copySourceTags(const TagTable& tags, std::span<const int> tagIndices,
                                          const DefaultByteOrder& byteOrder);
