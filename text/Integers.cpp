#include "text/Integers.h"

#include "text/Characters.h"

#include <algorithm>
#include <limits>

// Numbers are read as C's own functions read them, which files count on: blanks in front are skipped, reading stops at
// the first character that is not a digit, and no digits at all are 0. `strtol` itself would need each field copied
// with a zero byte after it, and `from_chars` takes neither blanks nor a "+".

namespace
{

/// The value of one hexadecimal digit, -1 for any other character.
int digitValue(char c)
{
    if (isDigit(c))
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

} // namespace

std::int32_t parseInteger(std::string_view text)
{
    text = withoutLeadingBlanks(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);

    // The range is not symmetric: there is one more number below zero than above.
    constexpr std::int64_t highest = std::numeric_limits<std::int32_t>::max();
    const std::int64_t limit = negative ? highest + 1 : highest;
    std::int64_t value = 0;
    for (const char c : text)
    {
        if (!isDigit(c))
            break;
        // It stops growing at the limit, so a thousand digits do not overflow either.
        value = std::min(limit, value * 10 + (c - '0'));
    }
    return static_cast<std::int32_t>(negative ? -value : value);
}

bool isWholeNumber(std::string_view text)
{
    text = withoutLeadingBlanks(text);
    if (text.starts_with('-') || text.starts_with('+'))
        text.remove_prefix(1);
    return !text.empty() && std::ranges::all_of(text, isDigit);
}

std::uint32_t parseHexadecimal(std::string_view text)
{
    text = withoutLeadingBlanks(text);
    // "0x" without a digit after it is the number 0 and other text, as C sees it.
    if ((text.starts_with("0x") || text.starts_with("0X")) && text.size() > 2 && digitValue(text[2]) >= 0)
        text.remove_prefix(2);

    // Bits that do not fit fall out at the top, and the low 32 remain.
    std::uint32_t value = 0;
    for (const char c : text)
    {
        const int digit = digitValue(c);
        if (digit < 0)
            break;
        value = value << 4U | static_cast<std::uint32_t>(digit);
    }
    return value;
}

std::string addressText(std::uint32_t address)
{
    // Longer numbers are not cut. They are not addresses, but what a file gave for one.
    constexpr std::size_t width = 5;
    std::string digits = std::to_string(address);
    if (digits.size() < width)
        digits.insert(0, width - digits.size(), '0');
    return digits;
}
