#pragma once

#include "map/RegisterMap.h"

#include <span>

/// What compressing came to, and what it asks of the caller.
enum class CompressResult
{
    NothingSelected, ///< nothing was listed: nothing to show
    Locked,          ///< the range holds a locked slot and is unchanged: say so, leave the view
    Unchanged,       ///< no range, or no free slot in it: rebuild the view
    Compressed       ///< objects may have moved: validate, then rebuild the view
};

/// Moves the objects between the first and the last listed address up over the free slots among them.
///
/// The range reaches from the first to the last address of the list as they come, and includes what lies between them,
/// listed or not. Its objects keep their order and follow each other from its first free slot on; the free slots gather
/// after them. Locks are looked for inside the range only. Used slots without a head are passed over, and written over
/// when an object comes to lie there.
/// @param addresses  a list whose first or last address is outside 0..65535 counts as empty
CompressResult compressRegisters(RegisterSlots& slots, std::span<const int> addresses);
