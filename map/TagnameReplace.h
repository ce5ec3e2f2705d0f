#pragma once

#include "map/RegisterMap.h"

#include <span>
#include <string_view>

/// Replaces every occurrence of `find` in the tagnames of the listed slots, used or not; locked ones keep theirs.
///
/// Occurrences are found from left to right without overlap, and the search goes on after each replacement. Slots are
/// taken one by one: a head that is listed alone leaves its continuation slots with the old name.
/// @param addresses    those outside 0..65535 are passed over, and one that is listed again is renamed once
/// @param find         compared exactly; an empty one changes nothing
/// @param replacement  may be empty, which removes the occurrences
/// @return false when there is not enough memory for the new names; no name has changed then
bool replaceInTagnames(RegisterSlots& slots, std::span<const int> addresses, std::string_view find,
                       std::string_view replacement);
