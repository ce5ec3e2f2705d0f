#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// Hands each place where a character stands to `take`, first to last.
///
/// Made for places that lie close together, as the commas of a line do: asking the library for each next one takes
/// twice as long.
/// @param take  called with an index of the text
template <class F>
void forEachPlaceOf(char sought, std::string_view text, F take)
{
    std::size_t place = 0;
    // Eight characters at a time, where the first one is the lowest byte.
    if constexpr (std::endian::native == std::endian::little)
    {
        constexpr std::uint64_t ones = 0x0101010101010101ULL;
        constexpr std::uint64_t lowBits = 0x7F * ones;
        for (std::uint64_t eight = 0; text.size() - place >= sizeof eight; place += sizeof eight)
        {
            std::memcpy(&eight, text.data() + place, sizeof eight);
            // Zero where the character is. Only there the highest bit of the byte is clear in all that follows.
            const std::uint64_t difference = eight ^ ones * static_cast<unsigned char>(sought);
            std::uint64_t marks = ~(((difference & lowBits) + lowBits) | difference | lowBits);
            for (; marks != 0; marks &= marks - 1)
                take(place + static_cast<std::size_t>(std::countr_zero(marks)) / 8);
        }
    }
    for (; place < text.size(); ++place)
    {
        if (text[place] == sought)
            take(place);
    }
}
