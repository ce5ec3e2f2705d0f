#pragma once

#include "map/RegisterMap.h"

#include <span>
#include <vector>

/// The registers of the objects whose heads are listed: what most editing commands work on.
///
/// The row of a free slot counts as one register, also when a move has left it the fields of a head; the row of a
/// continuation slot, vacated or not, adds nothing. Objects come in the order of their rows, each ascending; nothing is
/// sorted and repeats are kept. A map of overlapping objects can list the same registers thousands of times over: the
/// list ends at 16,777,216.
/// @param rowAddresses  addresses of the selected rows; any outside 0..65535 adds nothing
/// @return addresses 0..65535, also when an object's count runs past the end of the space
std::vector<int> collectSelection(const RegisterSlots& slots, std::span<const int> rowAddresses);
