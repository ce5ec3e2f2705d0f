#include "text/Utf8.h"

#include "text/SixteenCharacters.h"

#include <utf8proc.h>

#include <array>
#include <bit>

// The library knows what UTF-8 is; what is added here is the run of ASCII, which nearly all texts consist of, and one
// answer to bytes that are not UTF-8. Each of them is taken alone, so that reading goes on at the very next byte and no
// character after a broken one is lost.

std::size_t asciiRunLength(std::string_view text, std::size_t start)
{
    std::size_t end = start;
    for (; text.size() - end >= SixteenCharacters::count; end += SixteenCharacters::count)
    {
        if (const unsigned high = SixteenCharacters(text.data() + end).beyondAscii(); high != 0)
            return end + static_cast<std::size_t>(std::countr_zero(high)) - start;
    }
    while (end < text.size() && static_cast<unsigned char>(text[end]) < 0x80)
        ++end;
    return end - start;
}

Utf8Character characterAt(std::string_view text, std::size_t position)
{
    // No character is longer than four bytes, and the library counts with signed numbers.
    const std::string_view ahead = text.substr(position, 4);
    utf8proc_int32_t codePoint = 0;
    const auto length = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(ahead.data()),
                                         static_cast<utf8proc_ssize_t>(ahead.size()), &codePoint);
    // Overlong forms, surrogates and what is cut off are errors to the library. It does not say how many bytes are
    // wrong.
    if (length <= 0)
        return {};
    return {static_cast<char32_t>(codePoint), static_cast<std::size_t>(length), true};
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
        position += asciiRunLength(text, position);
    }
    return true;
}

void appendCharacter(std::string& text, char32_t codePoint)
{
    const auto wanted = static_cast<utf8proc_int32_t>(codePoint);
    // The library writes surrogates as if they were characters, so they are sorted out before.
    const bool isCharacter = utf8proc_codepoint_valid(wanted);
    std::array<utf8proc_uint8_t, 4> bytes;
    const auto length =
        utf8proc_encode_char(isCharacter ? wanted : static_cast<utf8proc_int32_t>(replacementCharacter), bytes.data());
    text.append(bytes.begin(), bytes.begin() + length);
}
