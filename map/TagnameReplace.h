#pragma once

#include "map/RegisterMap.h"

#include <span>
#include <string>
#include <string_view>

/// Replaces every occurrence of `find`, from left to right without overlap, going on behind each replacement.
/// @param find  compared exactly; an empty one replaces nothing
std::string replaceAll(std::string_view text, std::string_view find, std::string_view replacement);

/// Replaces every occurrence of `find` in the tagnames of the listed slots, used or not; locked ones keep theirs.
///
/// Slots are taken one by one: a head that is listed alone leaves its continuation slots with the old name.
/// @param addresses    those outside 0..65535 are passed over
/// @param find         compared exactly; an empty one changes nothing
/// @param replacement  may be empty, which removes the occurrences
void replaceInTagnames(RegisterSlots& slots, std::span<const int> addresses, std::string_view find,
                       std::string_view replacement);
