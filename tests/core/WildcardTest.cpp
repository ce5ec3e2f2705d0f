#include "text/Wildcard.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace
{

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
    EXPECT_TRUE(matchesWildcard("PUMP", "PUMP"));
    EXPECT_FALSE(matchesWildcard("PUMP", "PUMPS"));
    EXPECT_FALSE(matchesWildcard("PUMP", "APUMP"));
    EXPECT_FALSE(matchesWildcard("PUMP", "PUM"));
    EXPECT_FALSE(matchesWildcard("PUMP", "pump"));
    EXPECT_FALSE(matchesWildcard("PUMP", ""));
}

TEST(Wildcard, EmptyPatternMatchesTheEmptyTextAlone)
{
    EXPECT_TRUE(matchesWildcard("", ""));
    EXPECT_FALSE(matchesWildcard("", "A"));
}

TEST(Wildcard, StarStandsForAnyRun)
{
    EXPECT_TRUE(matchesWildcard("*", ""));
    EXPECT_TRUE(matchesWildcard("***", "ANY"));
    EXPECT_TRUE(matchesWildcard("*TEMP*", "TEMP"));
    EXPECT_TRUE(matchesWildcard("*TEMP*", "A TEMP 1"));
    EXPECT_FALSE(matchesWildcard("*TEMP*", "TEM P"));
    EXPECT_TRUE(matchesWildcard("A*B", "AB"));
    EXPECT_TRUE(matchesWildcard("A*B", "A B B"));
    EXPECT_FALSE(matchesWildcard("A*B", "A B A"));
    EXPECT_FALSE(matchesWildcard("A*A", "A"));
    EXPECT_TRUE(matchesWildcard("A*B*C", "A1B2B3C"));
    EXPECT_FALSE(matchesWildcard("A*B*C", "A1C2B"));
}

TEST(Wildcard, QuestionMarkStandsForExactlyOneCharacter)
{
    EXPECT_TRUE(matchesWildcard("T?MP", "TEMP"));
    EXPECT_TRUE(matchesWildcard("T?MP", "TAMP"));
    EXPECT_FALSE(matchesWildcard("T?MP", "TMP"));
    EXPECT_FALSE(matchesWildcard("T?MP", "TEEMP"));
    EXPECT_FALSE(matchesWildcard("?", ""));
    EXPECT_TRUE(matchesWildcard("*?", "A"));
    EXPECT_FALSE(matchesWildcard("*?*", ""));
    EXPECT_TRUE(matchesWildcard("*??*", "AB"));
    EXPECT_FALSE(matchesWildcard("*??*", "A"));
    EXPECT_TRUE(matchesWildcard("*??MP*", "TEMP"));
    EXPECT_FALSE(matchesWildcard("*??MP*", "EMP"));
    EXPECT_TRUE(matchesWildcard("*?A", "AA"));
}

TEST(Wildcard, QuestionMarkTakesACharacterOfSeveralBytes)
{
    EXPECT_TRUE(matchesWildcard("T?R", "T\xC3\x9CR"));
    EXPECT_TRUE(matchesWildcard("?", "\xF0\x9F\x98\x80"));
    EXPECT_FALSE(matchesWildcard("??", "\xF0\x9F\x98\x80"));
    EXPECT_TRUE(matchesWildcard("*?R*", "\xC3\x9CR"));
    EXPECT_FALSE(matchesWildcard("*??R*", "\xC3\x9CR"));
    EXPECT_TRUE(matchesWildcard("*R?", "R\xC3\x9C"));
    EXPECT_TRUE(matchesWildcard("*\xC3\x9C?", "\xC3\x9C\xC3\x9C\xC3\x9C"));
}

TEST(Wildcard, EverythingElseStandsForItself)
{
    EXPECT_TRUE(matchesWildcard("[A-Z]\\.+^$(x)", "[A-Z]\\.+^$(x)"));
    EXPECT_FALSE(matchesWildcard("[A-Z]", "B"));
    EXPECT_FALSE(matchesWildcard("\\*", "*"));
    EXPECT_TRUE(matchesWildcard("\\*", "\\abc"));
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
        ASSERT_EQ(matchesWildcard(joined(pattern), joined(text)), expected) << joined(pattern) << " | " << joined(text);
        matching += expected ? 1 : 0;
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
        ASSERT_TRUE(matchesWildcard("*" + text + "*", text)) << "round " << round;
        ASSERT_FALSE(matchesWildcard(pattern + "B", text)) << "round " << round;
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
    EXPECT_FALSE(matchesWildcard(pattern, text));
    EXPECT_TRUE(matchesWildcard(pattern, text + "B"));

    std::string wilds = "*";
    for (int i = 0; i < 100; ++i)
        wilds += "?*";
    EXPECT_FALSE(matchesWildcard(wilds + "B", text));
}
