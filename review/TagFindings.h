#pragma once

#include "map/RegisterMap.h"
#include "review/LineOwners.h"
#include "source/TagTable.h"

/// Appends the error marks of a validated map, one finding for each line and kind of mark: unknown tag, bad type, bad
/// write. A line without a tagname gets one finding for that, in place of all its marks.
/// @param map  as the lines fill it, validated
void appendTagFindings(Findings& findings, const PlacedLines& lines, const LineOwners& owners, const RegisterMap& map,
                       const TagTable& tags);
