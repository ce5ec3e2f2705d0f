#include "text/Characters.h"

#include <gtest/gtest.h>

TEST(Characters, LeadingBlanksAreSkipped)
{
    EXPECT_EQ(withoutLeadingBlanks(" \t\v\f\r\n5 "), "5 ");
    EXPECT_EQ(withoutLeadingBlanks("5"), "5");
    EXPECT_EQ(withoutLeadingBlanks(" \t"), "");
    EXPECT_EQ(withoutLeadingBlanks(""), "");
}

TEST(Characters, OuterBlanksAreSkippedAndInnerOnesStay)
{
    EXPECT_EQ(withoutOuterBlanks("\t a b\n "), "a b");
    EXPECT_EQ(withoutOuterBlanks("a"), "a");
    EXPECT_EQ(withoutOuterBlanks(" \r\n"), "");
    EXPECT_EQ(withoutOuterBlanks("\b"), "\b");
}

TEST(Characters, OnlyThe26CapitalsHaveASmallLetter)
{
    EXPECT_EQ(lowerCase('A'), 'a');
    EXPECT_EQ(lowerCase('Z'), 'z');
    for (const char c : {'a', 'z', '@', '[', '`', '0', '_', '\xC4'})
        EXPECT_EQ(lowerCase(c), c);
}

TEST(Characters, ALineOfBlanksOnlyIsBlank)
{
    EXPECT_TRUE(isBlankLine(""));
    EXPECT_TRUE(isBlankLine(" \t\r"));
    EXPECT_FALSE(isBlankLine(" ,"));
}

TEST(Characters, DigitsAreThoseOfDecimalNumbers)
{
    for (const char c : {'0', '5', '9'})
        EXPECT_TRUE(isDigit(c)) << c;
    for (const char c : {'/', ':', 'a', ' ', '\xB2'})
        EXPECT_FALSE(isDigit(c)) << c;
}

TEST(Characters, APairOfUnitsIsACharacterBeyondTheFirst65536)
{
    EXPECT_EQ(characterOfPair(0xD800, 0xDC00), 0x10000U);
    EXPECT_EQ(characterOfPair(0xD83D, 0xDE00), 0x1F600U);
    EXPECT_EQ(characterOfPair(0xDBFF, 0xDFFF), 0x10FFFFU);
}
