#include "json/JsonEscape.h"

#include <gtest/gtest.h>

TEST(JsonEscape, LettersAndSignsTakeTwoBytes)
{
    for (const char* text : {"\\\"", "\\\\", "\\/", "\\b", "\\f", "\\n", "\\r", "\\t", "\\\\u0041"})
        EXPECT_EQ(escapeLength(text), 2U) << text;
}

TEST(JsonEscape, UnitsTakeSixBytes)
{
    for (const char* text : {"\\u0000", "\\u00fcx", "\\uD7FF", "\\ue000", "\\u0041\\udc00"})
        EXPECT_EQ(escapeLength(text), 6U) << text;
}

TEST(JsonEscape, PairOfSurrogatesIsOneEscape)
{
    for (const char* text : {"\\ud83d\\ude00", "\\uDBFF\\uDFFFx", "\\ud800\\udc00\\udc00"})
        EXPECT_EQ(escapeLength(text), 12U) << text;
}

TEST(JsonEscape, UnknownAndCutOffEscapesAreNone)
{
    for (const char* text : {"\\", "\\x", "\\'", "\\0", "\\U0041", "\\\t", "\\u", "\\u004", "\\u12g4", "\\u+041",
                             "\\u-041", "\\u 041", "\\u0x41"})
        EXPECT_EQ(escapeLength(text), 0U) << text;
}

TEST(JsonEscape, HalfOfAPairIsNone)
{
    for (const char* text :
         {"\\ud800", "\\ud800x", "\\ud800\\u0041", "\\ud800\\ud800", "\\ud800\\udc0", "\\udc00", "\\uDFFF"})
        EXPECT_EQ(escapeLength(text), 0U) << text;
}

TEST(JsonEscape, AnEscapeStandsForItsCharacter)
{
    std::string text = "x";
    for (const char* escape : {"\\\"", "\\\\", "\\/", "\\b", "\\f", "\\n", "\\r", "\\t", "\\u0041", "\\u00fC",
                               "\\u20ac", "\\ud83d\\ude00", "\\uDBFF\\uDFFF"})
        appendUnescaped(text, escape);
    EXPECT_EQ(text, "x\"\\/\b\f\n\r\tA\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF");
}
