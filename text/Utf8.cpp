#include "text/Utf8.h"

#include <cstdint>
#include <cstring>

namespace
{

constexpr std::uint64_t highBits = 0x8080808080808080ULL;

/// True when one of the bytes is not ASCII.
/// @tparam length  a multiple of 8
template <std::size_t length>
bool holdsHighByte(const char* bytes)
{
    std::uint64_t words[length / 8];
    std::memcpy(words, bytes, length);
    std::uint64_t all = 0;
    for (const std::uint64_t word : words)
        all |= word;
    return (all & highBits) != 0;
}

constexpr bool isCharacter(char32_t codePoint)
{
    return codePoint < 0xD800 || (codePoint > 0xDFFF && codePoint <= 0x10FFFF);
}

/// Lead bytes say how many bytes follow and which values the first of these may take.
struct Lead
{
    std::size_t continuations;
    unsigned lowest = 0x80;
    unsigned highest = 0xBF;
};

/// A lead byte from 0x80 up; no continuations when no character begins with it.
Lead leadOf(unsigned byte)
{
    if (byte < 0xC2 || byte > 0xF4)
        return {0};
    if (byte < 0xE0)
        return {1};
    if (byte == 0xE0)
        return {2, 0xA0, 0xBF};
    if (byte == 0xED)
        return {2, 0x80, 0x9F};
    if (byte < 0xF0)
        return {2};
    if (byte == 0xF0)
        return {3, 0x90, 0xBF};
    if (byte == 0xF4)
        return {3, 0x80, 0x8F};
    return {3};
}

} // namespace

std::size_t asciiRunLength(std::string_view text, std::size_t start)
{
    const char* const first = text.data() + start;
    const char* const end = text.data() + text.size();
    const char* place = first;
    while (end - place >= 32 && !holdsHighByte<32>(place))
        place += 32;
    while (end - place >= 8 && !holdsHighByte<8>(place))
        place += 8;
    while (place != end && static_cast<unsigned char>(*place) < 0x80)
        ++place;
    return static_cast<std::size_t>(place - first);
}

Utf8Character characterAt(std::string_view text, std::size_t position)
{
    const unsigned first = static_cast<unsigned char>(text[position]);
    if (first < 0x80)
        return {first, 1, true};
    const Lead lead = leadOf(first);
    if (lead.continuations == 0)
        return {};

    unsigned codePoint = first & (0x3FU >> lead.continuations);
    unsigned lowest = lead.lowest;
    unsigned highest = lead.highest;
    for (std::size_t i = 1; i <= lead.continuations; ++i)
    {
        const std::size_t next = position + i;
        const unsigned byte = next < text.size() ? static_cast<unsigned char>(text[next]) : 0U;
        if (byte < lowest || byte > highest)
            return {replacementCharacter, i, false};
        codePoint = codePoint << 6U | (byte & 0x3FU);
        lowest = 0x80;
        highest = 0xBF;
    }
    return {codePoint, lead.continuations + 1, true};
}

bool isValidUtf8(std::string_view text)
{
    std::size_t position = asciiRunLength(text, 0);
    while (position < text.size())
    {
        const Utf8Character character = characterAt(text, position);
        if (!character.valid)
            return false;
        position += character.length;
        if (position < text.size() && static_cast<unsigned char>(text[position]) < 0x80)
            position += asciiRunLength(text, position);
    }
    return true;
}

void appendCharacter(std::string& text, char32_t codePoint)
{
    if (!isCharacter(codePoint))
        codePoint = replacementCharacter;
    const auto continuation = [codePoint](unsigned shift)
    { return static_cast<char>(0x80U | (codePoint >> shift & 0x3FU)); };

    if (codePoint < 0x80)
    {
        text.push_back(static_cast<char>(codePoint));
    }
    else if (codePoint < 0x800)
    {
        const char bytes[] = {static_cast<char>(0xC0U | codePoint >> 6U), continuation(0)};
        text.append(bytes, sizeof bytes);
    }
    else if (codePoint < 0x10000)
    {
        const char bytes[] = {static_cast<char>(0xE0U | codePoint >> 12U), continuation(6), continuation(0)};
        text.append(bytes, sizeof bytes);
    }
    else
    {
        const char bytes[] = {static_cast<char>(0xF0U | codePoint >> 18U), continuation(12), continuation(6),
                              continuation(0)};
        text.append(bytes, sizeof bytes);
    }
}
