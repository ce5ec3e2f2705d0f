#pragma once

#include "text/SixteenCharacters.h"

#include <bit>
#include <cstddef>
#include <string_view>

/// Hands each place where a character stands to `take`, first to last.
///
/// Made for places that lie close together, as the commas of a line do: asking the library for each next one takes
/// three times as long.
/// @param take  called with an index of the text
template <class F>
void forEachPlaceOf(char sought, std::string_view text, F take)
{
    const auto takeMarked = [&take](unsigned marks, std::size_t first)
    {
        for (; marks != 0; marks &= marks - 1)
            take(first + static_cast<std::size_t>(std::countr_zero(marks)));
    };
    constexpr std::size_t sixteen = SixteenCharacters::count;
    std::size_t place = 0;
    for (; text.size() - place >= sixteen; place += sixteen)
        takeMarked(SixteenCharacters(text.data() + place).equalTo(sought), place);
    const std::size_t rest = text.size() - place;
    if (text.size() >= sixteen)
    {
        // The last sixteen, without those that have been looked at.
        const SixteenCharacters last(text.data() + text.size() - sixteen);
        return takeMarked(last.equalTo(sought) >> (sixteen - rest), place);
    }
    for (; place < text.size(); ++place)
    {
        if (text[place] == sought)
            take(place);
    }
}
