#include "text/Utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

using namespace std::string_view_literals;

TEST(Utf8, WellFormedTextsOfEveryLengthAreValid)
{
    EXPECT_TRUE(isValidUtf8(""));
    EXPECT_TRUE(isValidUtf8("plain"));
    EXPECT_TRUE(isValidUtf8("\0\x7F"sv));
    EXPECT_TRUE(isValidUtf8("\xC2\x80 \xDF\xBF"));
    EXPECT_TRUE(isValidUtf8("\xE0\xA0\x80 \xED\x9F\xBF \xEE\x80\x80 \xEF\xBF\xBF"));
    EXPECT_TRUE(isValidUtf8("\xF0\x90\x80\x80 \xF4\x8F\xBF\xBF"));
}

TEST(Utf8, OverlongFormsAreInvalid)
{
    EXPECT_FALSE(isValidUtf8("\xC0\x80"));
    EXPECT_FALSE(isValidUtf8("\xC1\xBF"));
    EXPECT_FALSE(isValidUtf8("\xE0\x9F\xBF"));
    EXPECT_FALSE(isValidUtf8("\xF0\x8F\xBF\xBF"));
}

TEST(Utf8, SurrogatesAndValuesBeyondTheLastCharacterAreInvalid)
{
    EXPECT_FALSE(isValidUtf8("\xED\xA0\x80"));
    EXPECT_FALSE(isValidUtf8("\xED\xBF\xBF"));
    EXPECT_FALSE(isValidUtf8("\xF4\x90\x80\x80"));
    EXPECT_FALSE(isValidUtf8("\xF5\x80\x80\x80"));
    EXPECT_FALSE(isValidUtf8("\xFF"));
}

TEST(Utf8, CharactersCutOffOrContinuedWithoutBeginningAreInvalid)
{
    EXPECT_FALSE(isValidUtf8("\xC3"));
    EXPECT_FALSE(isValidUtf8("\xE2\x82"));
    EXPECT_FALSE(isValidUtf8("\xF0\x9F\x98"));
    EXPECT_FALSE(isValidUtf8("\xC3"
                             "A"));
    EXPECT_FALSE(isValidUtf8("A\x80"));
}

TEST(Utf8, OneInvalidByteIsFoundAtEveryPlaceOfALongText)
{
    for (std::size_t place = 0; place < 100; ++place)
    {
        std::string text(100, 'a');
        ASSERT_TRUE(isValidUtf8(text));
        text[place] = '\xFC';
        EXPECT_FALSE(isValidUtf8(text)) << place;
    }
}

TEST(Utf8, AsciiRunEndsInFrontOfTheFirstHighByte)
{
    for (std::size_t place = 0; place < 100; ++place)
    {
        std::string text(100, 'a');
        text[place] = '\xFC';
        EXPECT_EQ(asciiRunLength(text, 0), place);
        EXPECT_EQ(asciiRunLength(text, place), 0U);
    }
    EXPECT_EQ(asciiRunLength("abc", 1), 2U);
    EXPECT_EQ(asciiRunLength("abc", 3), 0U);
}

TEST(Utf8, EveryCharacterIsReadBackAsItWasAppended)
{
    for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint)
    {
        if (codePoint == 0xD800)
            codePoint = 0xE000;
        std::string text;
        appendCharacter(text, codePoint);
        const Utf8Character character = characterAt(text, 0);
        ASSERT_TRUE(character.valid);
        ASSERT_EQ(character.codePoint, codePoint);
        ASSERT_EQ(character.length, text.size());
    }
}

TEST(Utf8, WhatIsNoCharacterIsAppendedAsTheReplacementCharacter)
{
    std::string text;
    appendCharacter(text, 0xD800);
    appendCharacter(text, 0xDFFF);
    appendCharacter(text, 0x110000);
    appendCharacter(text, 0xFFFFFFFF);
    EXPECT_EQ(text, "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Utf8, ByteThatBeginsNoCharacterIsTakenAlone)
{
    for (const std::string_view text : {"\xE2\x82\x41"sv, "\xE2\x41"sv, "\x80\x80"sv, "\xF0\x9F\x98"sv, "\xFF"sv})
    {
        const Utf8Character character = characterAt(text, 0);
        EXPECT_FALSE(character.valid);
        EXPECT_EQ(character.codePoint, replacementCharacter);
        EXPECT_EQ(character.length, 1U);
    }
}
