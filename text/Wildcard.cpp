#include "text/Wildcard.h"

#include "text/Utf8.h"

#include <cstddef>

// A star first matches nothing and then ever more, until the rest of the pattern matches too:
//
//   pattern   *   ump   *    _run   *
//   text      p   ump   _a   _run   s
//
// Only the last star is ever tried again. What an earlier one has taken stays: it took as little as it could, so the
// stars after it have the most to choose from. That is why many stars cost no more than one after the other.

namespace
{

/// The position after the character that stands at `position`.
std::size_t afterCharacter(std::string_view text, std::size_t position)
{
    ++position;
    while (position < text.size() && isContinuationByte(text[position]))
        ++position;
    return position;
}

/// The part of a pattern, from `start` on, that stands for itself.
std::string_view literalAt(std::string_view pattern, std::size_t start)
{
    const std::string_view rest = pattern.substr(start);
    return rest.substr(0, rest.find_first_of("*?"));
}

} // namespace

bool matchesWildcard(std::string_view pattern, std::string_view text)
{
    constexpr std::size_t none = std::string_view::npos;
    std::size_t unit = 0; // of the pattern
    std::size_t position = 0;
    std::size_t afterStar = none; // the unit after the last star
    std::size_t starEnd = 0;      // where that star's run ends in the text
    while (position < text.size())
    {
        const bool patternIsLeft = unit < pattern.size();
        if (patternIsLeft && pattern[unit] != '*' && (pattern[unit] == '?' || pattern[unit] == text[position]))
        {
            position = pattern[unit] == '?' ? afterCharacter(text, position) : position + 1;
            ++unit;
            continue;
        }
        if (patternIsLeft && pattern[unit] == '*')
        {
            afterStar = unit + 1;
            starEnd = position;
        }
        else if (afterStar != none)
            ++starEnd; // only the last star's run grows: a longer run of an earlier one could match nothing more
        else
            return false;

        // The run ends no earlier than where the text goes on as the pattern does.
        starEnd = text.find(literalAt(pattern, afterStar), starEnd);
        if (starEnd == none)
            return false;
        unit = afterStar;
        position = starEnd;
    }
    // At the end of the text each star that is left matches nothing; any other unit would need a character.
    return pattern.find_first_not_of('*', unit) == none;
}
