#include "text/EscapedBytes.h"

#include "tests/core/Chance.h"
#include "text/Utf8.h"

#include <gtest/gtest.h>

TEST(EscapedBytes, LeaveWellFormedTextAsItIs)
{
    for (const std::string_view text : {"", "plant.csv", "pl\xC3\xA4nt.csv", "\xF0\x9F\x92\xA7"})
    {
        EXPECT_EQ(escapeBytes(text), text);
        EXPECT_EQ(unescapeBytes(text), text);
    }
}

TEST(EscapedBytes, MakeACharacterOfEveryByteThatBelongsToNone)
{
    EXPECT_EQ(escapeBytes("pl\xE4nt"), "pl\xF4\x8F\xBF\xA4nt");
    EXPECT_EQ(unescapeBytes("pl\xF4\x8F\xBF\xA4nt"), "pl\xE4nt");
}

TEST(EscapedBytes, EscapeTheCharactersThatStandForBytes)
{
    const std::string text = "\xF4\x8F\xBF\xA4";
    EXPECT_NE(escapeBytes(text), text);
    EXPECT_EQ(unescapeBytes(escapeBytes(text)), text);
}

TEST(EscapedBytes, OfAnyBytesAreTextAndGiveThemBack)
{
    Chance chance(7);
    for (int round = 0; round < 2000; ++round)
    {
        std::string bytes(static_cast<std::size_t>(chance.pick(0, 12)), '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(chance.pick(0, 255));
        const std::string text = escapeBytes(bytes);
        ASSERT_TRUE(isValidUtf8(text));
        ASSERT_EQ(unescapeBytes(text), bytes);
    }
}
