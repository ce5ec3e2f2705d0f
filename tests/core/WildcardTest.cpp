#include "text/Wildcard.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace
{

bool matches(std::string_view pattern, std::string_view text)
{
    return WildcardPattern(pattern).matches(text);
}

/// The definition of matching, written down: row by row, whether the first i units of the pattern match the first j of
/// the text.
bool matchesByDefinition(const std::vector<std::string>& pattern, const std::vector<std::string>& text)
{
    std::vector<bool> row(text.size() + 1, false);
    row[0] = true;
    for (const std::string& unit : pattern)
    {
        std::vector<bool> next(text.size() + 1, false);
        next[0] = unit == "*" && row[0];
        for (std::size_t j = 1; j <= text.size(); ++j)
            next[j] = unit == "*" ? row[j] || next[j - 1] : row[j - 1] && (unit == "?" || unit == text[j - 1]);
        row = next;
    }
    return row[text.size()];
}

std::string joined(const std::vector<std::string>& units)
{
    std::string text;
    for (const std::string& unit : units)
        text += unit;
    return text;
}

} // namespace

TEST(Wildcard, TextWithoutWildcardsMatchesItselfAlone)
{
    EXPECT_TRUE(matches("PUMP", "PUMP"));
    EXPECT_FALSE(matches("PUMP", "PUMPS"));
    EXPECT_FALSE(matches("PUMP", "APUMP"));
    EXPECT_FALSE(matches("PUMP", "PUM"));
    EXPECT_FALSE(matches("PUMP", "pump"));
    EXPECT_FALSE(matches("PUMP", ""));
}

TEST(Wildcard, EmptyPatternMatchesTheEmptyTextAlone)
{
    EXPECT_TRUE(matches("", ""));
    EXPECT_FALSE(matches("", "A"));
}

TEST(Wildcard, StarStandsForAnyRun)
{
    EXPECT_TRUE(matches("*", ""));
    EXPECT_TRUE(matches("***", "ANY"));
    EXPECT_TRUE(matches("*TEMP*", "TEMP"));
    EXPECT_TRUE(matches("*TEMP*", "A TEMP 1"));
    EXPECT_FALSE(matches("*TEMP*", "TEM P"));
    EXPECT_TRUE(matches("A*B", "AB"));
    EXPECT_TRUE(matches("A*B", "A B B"));
    EXPECT_FALSE(matches("A*B", "A B A"));
    EXPECT_FALSE(matches("A*A", "A"));
    EXPECT_TRUE(matches("A*B*C", "A1B2B3C"));
    EXPECT_FALSE(matches("A*B*C", "A1C2B"));
}

TEST(Wildcard, QuestionMarkStandsForExactlyOneCharacter)
{
    EXPECT_TRUE(matches("T?MP", "TEMP"));
    EXPECT_TRUE(matches("T?MP", "TAMP"));
    EXPECT_FALSE(matches("T?MP", "TMP"));
    EXPECT_FALSE(matches("T?MP", "TEEMP"));
    EXPECT_FALSE(matches("?", ""));
    EXPECT_TRUE(matches("*?", "A"));
    EXPECT_FALSE(matches("*?*", ""));
    EXPECT_TRUE(matches("*??*", "AB"));
    EXPECT_FALSE(matches("*??*", "A"));
    EXPECT_TRUE(matches("*??MP*", "TEMP"));
    EXPECT_FALSE(matches("*??MP*", "EMP"));
    EXPECT_TRUE(matches("*?A", "AA"));
}

TEST(Wildcard, QuestionMarkTakesACharacterOfSeveralBytes)
{
    EXPECT_TRUE(matches("T?R", "T\xC3\x9CR"));
    EXPECT_TRUE(matches("?", "\xF0\x9F\x98\x80"));
    EXPECT_FALSE(matches("??", "\xF0\x9F\x98\x80"));
    EXPECT_TRUE(matches("*?R*", "\xC3\x9CR"));
    EXPECT_FALSE(matches("*??R*", "\xC3\x9CR"));
    EXPECT_TRUE(matches("*R?", "R\xC3\x9C"));
    EXPECT_TRUE(matches("*\xC3\x9C?", "\xC3\x9C\xC3\x9C\xC3\x9C"));
}

TEST(Wildcard, EverythingElseStandsForItself)
{
    EXPECT_TRUE(matches("[A-Z]\\.+^$(x)", "[A-Z]\\.+^$(x)"));
    EXPECT_FALSE(matches("[A-Z]", "B"));
    EXPECT_FALSE(matches("\\*", "*"));
    EXPECT_TRUE(matches("\\*", "\\abc"));
}

TEST(Wildcard, LongestPieceIsInEveryMatch)
{
    EXPECT_EQ(WildcardPattern("*AB?CDE*FG*").longestPiece(), "CDE");
    EXPECT_EQ(WildcardPattern("*?*").longestPiece(), "");
    EXPECT_EQ(WildcardPattern("ABC").longestPiece(), "ABC");
}

TEST(Wildcard, ContainmentIsAPieceBetweenStars)
{
    EXPECT_TRUE(WildcardPattern("*").isContainment());
    EXPECT_TRUE(WildcardPattern("*ABC*").isContainment());
    EXPECT_TRUE(WildcardPattern("**ABC**").isContainment());
    EXPECT_FALSE(WildcardPattern("*A?C*").isContainment());
    EXPECT_FALSE(WildcardPattern("*?*").isContainment());
    EXPECT_FALSE(WildcardPattern("*A*C*").isContainment());
    EXPECT_FALSE(WildcardPattern("ABC*").isContainment());
    EXPECT_FALSE(WildcardPattern("*ABC").isContainment());
    EXPECT_FALSE(WildcardPattern("ABC").isContainment());
    EXPECT_FALSE(WildcardPattern("").isContainment());
}

TEST(Wildcard, AgreesWithTheDefinitionOnRandomTexts)
{
    std::mt19937 random(2024);
    const auto draw = [&random](std::size_t longest, const std::vector<std::string>& units)
    {
        std::vector<std::string> drawn(random() % (longest + 1));
        for (std::string& unit : drawn)
            unit = units[random() % units.size()];
        return drawn;
    };
    const std::vector<std::string> letters{"A", "B", "\xC3\x9C", "\xF0\x9F\x98\x80"};
    const std::vector<std::string> unitsOfPattern{"A", "A", "B", "\xC3\x9C", "\xF0\x9F\x98\x80", "*", "*", "?"};
    int matching = 0;
    for (int round = 0; round < 100000; ++round)
    {
        const auto pattern = draw(7, unitsOfPattern);
        const auto text = draw(10, letters);
        const bool expected = matchesByDefinition(pattern, text);
        ASSERT_EQ(matches(joined(pattern), joined(text)), expected) << joined(pattern) << " | " << joined(text);
        if (expected)
        {
            ++matching;
            ASSERT_NE(joined(text).find(WildcardPattern(joined(pattern)).longestPiece()), std::string::npos);
        }
    }
    EXPECT_GT(matching, 10000);
}

TEST(Wildcard, MalformedTextsAreMatchedWithoutHarm)
{
    std::mt19937 random(99);
    for (int round = 0; round < 20000; ++round)
    {
        std::string pattern(random() % 6, ' ');
        std::string text(random() % 8, ' ');
        for (char& c : pattern)
            c = "*?A\x80\xC3"[random() % 5];
        for (char& c : text)
            c = "A\x80\xC3\xFF"[random() % 4];
        ASSERT_TRUE(WildcardPattern("*" + text + "*").matches(text)) << "round " << round;
        ASSERT_FALSE(WildcardPattern(pattern + "B").matches(text)) << "round " << round;
    }
}

TEST(Wildcard, ManyStarsTakeNoMoreThanTextTimesPattern)
{
    std::string pattern = "*";
    for (int i = 0; i < 100; ++i)
        pattern += "A*";
    pattern += "B*";
    std::string text;
    text.resize(1000000, 'A');
    EXPECT_FALSE(matches(pattern, text));
    EXPECT_TRUE(matches(pattern, text + "B"));

    std::string wilds = "*";
    for (int i = 0; i < 100; ++i)
        wilds += "?*";
    EXPECT_FALSE(matches(wilds + "B", text));
}
