#include "text/Wildcard.h"

#include "text/FindBytes.h"
#include "text/Utf8.h"

#include <algorithm>

namespace
{

constexpr std::size_t nowhere = std::string_view::npos;

/// The position behind the character that stands at `position`.
std::size_t behindCharacter(std::string_view text, std::size_t position)
{
    ++position;
    while (position < text.size() && isContinuationByte(text[position]))
        ++position;
    return position;
}

/// The position `count` characters in front of `position`, or nowhere when that would be in front of `limit`.
std::size_t stepBack(std::string_view text, std::size_t position, std::size_t count, std::size_t limit)
{
    for (; count > 0; --count)
    {
        if (position <= limit)
            return nowhere;
        --position;
        while (position > limit && isContinuationByte(text[position]))
            --position;
    }
    return position;
}

/// The longest piece of the text between two "?".
std::string_view longestLiteral(std::string_view text)
{
    std::string_view longest;
    while (!text.empty())
    {
        const std::string_view piece = text.substr(0, text.find('?'));
        if (piece.size() > longest.size())
            longest = piece;
        text.remove_prefix(std::min(piece.size() + 1, text.size()));
    }
    return longest;
}

} // namespace

WildcardPattern::Segment::Segment(std::string_view part)
    : text(part),
      characters(static_cast<std::size_t>(std::ranges::count_if(part, [](char c) { return !isContinuationByte(c); }))),
      leadingWilds(std::min(part.find_first_not_of('?'), part.size())),
      literalLength(std::min(part.find('?', leadingWilds), part.size()) - leadingWilds)
{
}

WildcardPattern::WildcardPattern(std::string_view pattern)
    : anchoredAtStart(!pattern.starts_with('*')), anchoredAtEnd(!pattern.ends_with('*'))
{
    const bool withoutStar = pattern.find('*') == nowhere;
    while (!pattern.empty())
    {
        const std::string_view part = pattern.substr(0, pattern.find('*'));
        if (!part.empty())
            segments.emplace_back(part);
        pattern.remove_prefix(std::min(part.size() + 1, pattern.size()));
    }
    if (withoutStar && segments.empty())
        segments.emplace_back("");

    for (const Segment& segment : segments)
    {
        const std::string_view piece = longestLiteral(segment.text);
        if (piece.size() > longest.size())
            longest = piece;
    }
    containment = !anchoredAtStart && !anchoredAtEnd &&
                  (segments.empty() || (segments.size() == 1 && segments.front().text == longest));
}

/// Matches a segment with the text from `start` on.
/// @return where the match ends, or nowhere
std::size_t WildcardPattern::matchAt(const Segment& segment, std::string_view text, std::size_t start)
{
    std::size_t position = start;
    for (const char c : segment.text)
    {
        if (position >= text.size())
            return nowhere;
        if (c == '?')
            position = behindCharacter(text, position);
        else if (text[position++] != c)
            return nowhere;
    }
    return position;
}

/// Finds the first place, from `start` on, where a segment matches.
/// @return where that match ends, or nowhere
std::size_t WildcardPattern::findEnd(const Segment& segment, std::string_view text, std::size_t start)
{
    const std::string_view literal = segment.literal();
    if (literal.empty())
        return matchAt(segment, text, start);
    for (std::size_t found = findBytes(text, literal, start); found != nowhere;
         found = findBytes(text, literal, found + 1))
    {
        const std::size_t first = stepBack(text, found, segment.leadingWilds, start);
        const std::size_t end = first == nowhere ? nowhere : matchAt(segment, text, first);
        if (end != nowhere)
            return end;
    }
    return nowhere;
}

bool WildcardPattern::matches(std::string_view text) const
{
    // The earliest match of each segment leaves the most text to those behind it, so none is ever tried again.
    std::size_t position = 0;
    std::size_t next = 0;
    if (anchoredAtStart)
    {
        position = matchAt(segments[next++], text, 0);
        if (position == nowhere)
            return false;
    }
    const bool endsWithOwnSegment = anchoredAtEnd && next < segments.size();
    const std::size_t floating = segments.size() - (endsWithOwnSegment ? 1 : 0);
    for (; next < floating; ++next)
    {
        position = findEnd(segments[next], text, position);
        if (position == nowhere)
            return false;
    }
    if (!endsWithOwnSegment)
        return !anchoredAtEnd || position == text.size();
    const std::size_t start = stepBack(text, text.size(), segments.back().characters, position);
    return start != nowhere && matchAt(segments.back(), text, start) == text.size();
}
