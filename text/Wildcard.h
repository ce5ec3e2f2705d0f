#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// A pattern that a whole text matches or not: "*" stands for any run of characters, also for none, "?" for exactly
/// one character, everything else for itself.
///
/// Matching takes time proportional to text times pattern at worst, however many "*" there are.
class WildcardPattern
{
public:
    /// @param pattern  UTF-8, in the letter case of the texts that it is matched with
    explicit WildcardPattern(std::string_view pattern);

    /// True when the whole text matches.
    /// @param text  UTF-8
    bool matches(std::string_view text) const;

    /// The longest piece without wildcards: every text that matches holds it.
    std::string_view longestPiece() const { return longest; }

    /// True when, the other way round, every text that holds `longestPiece` matches.
    bool isContainment() const { return containment; }

private:
    /// What stands between two "*": literal text and "?".
    struct Segment
    {
        explicit Segment(std::string_view part);

        /// The literal text behind the leading "?", up to the next one.
        std::string_view literal() const { return std::string_view(text).substr(leadingWilds, literalLength); }

        std::string text;
        std::size_t characters;    ///< characters that it matches
        std::size_t leadingWilds;  ///< number of "?" that it begins with
        std::size_t literalLength; ///< bytes
    };

    static std::size_t matchAt(const Segment& segment, std::string_view text, std::size_t start);
    static std::size_t findEnd(const Segment& segment, std::string_view text, std::size_t start);

    std::vector<Segment> segments; ///< none for the pattern of "*" alone
    bool anchoredAtStart = true;   ///< the first segment begins where the text begins
    bool anchoredAtEnd = true;     ///< the last segment ends where the text ends
    std::string longest;
    bool containment = false;
};
