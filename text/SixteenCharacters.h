#pragma once

#include <array>
#include <cstddef>
#include <cstring>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#endif

/// Sixteen characters of a text, looked at together: a start waits for the end of 18 MB of them.
///
/// Each answer has one bit for each character, the lowest for the first one. This is how any processor does it.
class PortableSixteen
{
public:
    static constexpr std::size_t count = 16;

    /// @param text  sixteen characters at least
    explicit PortableSixteen(const char* text) { std::memcpy(characters.data(), text, count); }

    /// The characters that are this one.
    unsigned equalTo(char c) const
    {
        return marks([c](char each) { return each == c; });
    }

    /// The characters below a code.
    /// @param bound  1..255
    unsigned below(unsigned char bound) const
    {
        return marks([bound](char each) { return static_cast<unsigned char>(each) < bound; });
    }

    /// The characters from 0x80 on.
    unsigned beyondAscii() const
    {
        return marks([](char each) { return static_cast<unsigned char>(each) >= 0x80; });
    }

private:
    template <class Test>
    unsigned marks(Test test) const
    {
        unsigned result = 0;
        for (std::size_t i = 0; i < count; ++i)
            result |= static_cast<unsigned>(test(characters[i])) << i;
        return result;
    }

    std::array<char, count> characters;
};

#if defined(__SSE2__) || defined(_M_X64)

/// The same in a few instructions, which every 64-bit x86 has.
class SixteenCharacters
{
public:
    static constexpr std::size_t count = 16;

    explicit SixteenCharacters(const char* text) : characters(_mm_loadu_si128(reinterpret_cast<const __m128i*>(text)))
    {
    }

    unsigned equalTo(char c) const { return marks(_mm_cmpeq_epi8(characters, _mm_set1_epi8(c))); }

    unsigned below(unsigned char bound) const
    {
        // Those that are not lowered to the highest code that is meant.
        const __m128i highest = _mm_set1_epi8(static_cast<char>(bound - 1));
        return marks(_mm_cmpeq_epi8(_mm_min_epu8(characters, highest), characters));
    }

    unsigned beyondAscii() const { return marks(characters); }

private:
    static unsigned marks(__m128i highestBits) { return static_cast<unsigned>(_mm_movemask_epi8(highestBits)); }

    __m128i characters;
};

#else

using SixteenCharacters = PortableSixteen;

#endif
