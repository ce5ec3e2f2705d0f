#include "json/JsonEscape.h"

#include "text/Characters.h"
#include "text/Utf8.h"

#include <charconv>
#include <optional>

// A character beyond the first 65,536 is written as two escapes, the halves of its pair in UTF-16: "\uD83D\uDE00". Half
// a pair alone is not a character and has no UTF-8, so a text that holds one is refused as a whole rather than shown
// with a hole in it.

namespace
{

constexpr std::size_t unitLength = 6; ///< of "\u" and its four digits

// What may follow a backslash, and what it then stands for. No other letter means anything: "\x41" and "\'" are C, not
// JSON.
constexpr std::string_view letters = "\"\\/bfnrt";
constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";

/// The UTF-16 unit of the "\u" escape that the text begins with, or nothing when it begins with none.
std::optional<unsigned> escapedUnit(std::string_view text)
{
    if (text.size() < unitLength || !text.starts_with("\\u"))
        return std::nullopt;
    unsigned unit = 0;
    // It takes neither a sign nor "0x" nor a blank, so four digits are four digits.
    const char* const end = text.data() + unitLength;
    const auto [stop, error] = std::from_chars(text.data() + 2, end, unit, 16);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return unit;
}

} // namespace

std::size_t escapeLength(std::string_view text)
{
    if (text.size() >= 2 && letters.find(text[1]) != std::string_view::npos)
        return 2;
    const auto unit = escapedUnit(text);
    // A second half without a first one before it is not a character.
    if (!unit || isLowSurrogate(*unit))
        return 0;
    if (!isHighSurrogate(*unit))
        return unitLength;
    // The second half has to be an escape too, right after the first.
    const auto second = escapedUnit(text.substr(unitLength));
    return second && isLowSurrogate(*second) ? 2 * unitLength : 0;
}

void appendUnescaped(std::string& target, std::string_view escape)
{
    const auto unit = escapedUnit(escape);
    const auto second = escape.size() > unitLength ? escapedUnit(escape.substr(unitLength)) : std::nullopt;
    if (second)
        appendCharacter(target, characterOfPair(*unit, *second));
    else if (unit)
        appendCharacter(target, *unit);
    else
        target += meanings[letters.find(escape[1])];
}
