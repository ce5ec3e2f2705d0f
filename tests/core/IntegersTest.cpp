#include "text/Integers.h"

#include <gtest/gtest.h>

#include <limits>

constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();

TEST(ParseInteger, ReadsDigitsUpToTheFirstOtherCharacter)
{
    EXPECT_EQ(parseInteger("42"), 42);
    EXPECT_EQ(parseInteger("3x"), 3);
    EXPECT_EQ(parseInteger("12.9"), 12);
    EXPECT_EQ(parseInteger("7 8"), 7);
    EXPECT_EQ(parseInteger("0x10"), 0);
    EXPECT_EQ(parseInteger("12:5"), 12);
    EXPECT_EQ(parseInteger("12/5"), 12);
}

TEST(ParseInteger, LeadingZerosAreNotOctal)
{
    EXPECT_EQ(parseInteger("00010"), 10);
    EXPECT_EQ(parseInteger("00089"), 89);
}

TEST(ParseInteger, SkipsLeadingBlanksOfEveryKind)
{
    EXPECT_EQ(parseInteger(" \t\n\v\f\r5"), 5);
}

TEST(ParseInteger, TakesOneSignDirectlyBeforeTheDigits)
{
    EXPECT_EQ(parseInteger("-2"), -2);
    EXPECT_EQ(parseInteger("+2"), 2);
    EXPECT_EQ(parseInteger("  -2"), -2);
    EXPECT_EQ(parseInteger("--2"), 0);
    EXPECT_EQ(parseInteger("+-2"), 0);
    EXPECT_EQ(parseInteger("- 2"), 0);
}

TEST(ParseInteger, NoDigitsGiveZero)
{
    EXPECT_EQ(parseInteger(""), 0);
    EXPECT_EQ(parseInteger("   "), 0);
    EXPECT_EQ(parseInteger("-"), 0);
    EXPECT_EQ(parseInteger("x5"), 0);
    EXPECT_EQ(parseInteger("\u00a05"), 0);
}

TEST(ParseInteger, SaturatesAtTheEndsOf32Bits)
{
    EXPECT_EQ(parseInteger("2147483647"), highest);
    EXPECT_EQ(parseInteger("2147483648"), highest);
    EXPECT_EQ(parseInteger("-2147483648"), lowest);
    EXPECT_EQ(parseInteger("-2147483649"), lowest);
    EXPECT_EQ(parseInteger("4294967296"), highest);
    EXPECT_EQ(parseInteger("18446744073709551617"), highest);
    EXPECT_EQ(parseInteger("-" + std::string(1000, '9')), lowest);
}

TEST(ParseInteger, LookingAtPartOfATextStopsAtItsEnd)
{
    const std::string_view text = "1234";
    EXPECT_EQ(parseInteger(text.substr(1, 2)), 23);
}

TEST(IsWholeNumber, IsTrueForWhatIsReadAsItLooks)
{
    for (const char* const text : {"0", "00010", "-2", "+2", " \t7", "2147483648"})
        EXPECT_TRUE(isWholeNumber(text)) << text;
    for (const char* const text : {"", " ", "-", "--2", "3x", "12.9", "7 ", "0x10", "1e5", "\u00a05"})
        EXPECT_FALSE(isWholeNumber(text)) << text;
}

TEST(ParseHexadecimal, ReadsDigitsOfBothCasesUpToTheFirstOtherCharacter)
{
    EXPECT_EQ(parseHexadecimal("1aF"), 0x1AFU);
    EXPECT_EQ(parseHexadecimal("12g"), 0x12U);
    EXPECT_EQ(parseHexadecimal("16"), 0x16U);
    EXPECT_EQ(parseHexadecimal("  200000"), 0x200000U);
}

TEST(ParseHexadecimal, TakesAPrefixOnlyInFrontOfADigit)
{
    EXPECT_EQ(parseHexadecimal("0x1F"), 0x1FU);
    EXPECT_EQ(parseHexadecimal("0X1f"), 0x1FU);
    EXPECT_EQ(parseHexadecimal("0x"), 0U);
    EXPECT_EQ(parseHexadecimal("0xg"), 0U);
    EXPECT_EQ(parseHexadecimal("0x0x1"), 0U);
}

TEST(ParseHexadecimal, NoDigitsGiveZero)
{
    EXPECT_EQ(parseHexadecimal(""), 0U);
    EXPECT_EQ(parseHexadecimal("  "), 0U);
    EXPECT_EQ(parseHexadecimal("mask"), 0U);
    EXPECT_EQ(parseHexadecimal("-1"), 0U);
}

TEST(ParseHexadecimal, KeepsTheLow32Bits)
{
    EXPECT_EQ(parseHexadecimal("FFFFFFFF"), 0xFFFFFFFFU);
    EXPECT_EQ(parseHexadecimal("1FFFFFFFF"), 0xFFFFFFFFU);
    EXPECT_EQ(parseHexadecimal("123456789ABCDEF0"), 0x9ABCDEF0U);
}

TEST(AddressText, HasAtLeastFiveDigits)
{
    EXPECT_EQ(addressText(0), "00000");
    EXPECT_EQ(addressText(7), "00007");
    EXPECT_EQ(addressText(12345), "12345");
    EXPECT_EQ(addressText(65535), "65535");
    EXPECT_EQ(addressText(100000), "100000");
    EXPECT_EQ(addressText(4294967295U), "4294967295");
}
