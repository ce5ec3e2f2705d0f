#include "text/SixteenCharacters.h"

#include <gtest/gtest.h>

#include <string>

template <class Sixteen>
class SixteenCharactersTest : public testing::Test
{
};

using BothWays = testing::Types<PortableSixteen, SixteenCharacters>;
TYPED_TEST_SUITE(SixteenCharactersTest, BothWays);

TYPED_TEST(SixteenCharactersTest, EachCharacterHasItsBit)
{
    const std::string text("a,b,\"\\\x1F \x7F\x80\xFF,,\0\n,", TypeParam::count);
    const TypeParam characters(text.data());
    EXPECT_EQ(characters.equalTo(','), 0b1001'1000'0000'1010U);
    EXPECT_EQ(characters.equalTo('z'), 0U);
    EXPECT_EQ(characters.equalTo('\xFF'), 0b0000'0100'0000'0000U);
    EXPECT_EQ(characters.below(0x20), 0b0110'0000'0100'0000U);
    EXPECT_EQ(characters.beyondAscii(), 0b0000'0110'0000'0000U);
}

TYPED_TEST(SixteenCharactersTest, EveryCodeIsTold)
{
    for (int code = 0; code < 256; ++code)
    {
        const std::string text(TypeParam::count, static_cast<char>(code));
        const TypeParam characters(text.data());
        EXPECT_EQ(characters.below(0x20), code < 0x20 ? 0xFFFFU : 0U) << code;
        EXPECT_EQ(characters.beyondAscii(), code >= 0x80 ? 0xFFFFU : 0U) << code;
        EXPECT_EQ(characters.equalTo(static_cast<char>(code)), 0xFFFFU) << code;
        EXPECT_EQ(characters.equalTo(static_cast<char>(code ^ 1)), 0U) << code;
    }
}
