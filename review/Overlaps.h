#pragma once

#include "review/LineOwners.h"

/// Appends an error for each line that takes registers of an earlier one, naming both.
///
/// A line is compared with those that own the registers just before it is placed, as the editor places one line after
/// the other. So there are at most about two findings for each line, however many lie over each other.
void appendOverlaps(Findings& findings, const PlacedLines& lines, const LineOwners& owners);
