#include "text/UpperCase.h"

#include <gtest/gtest.h>

#include <string>

TEST(UpperCase, AsciiLettersAloneChange)
{
    EXPECT_EQ(toUpperCase(""), "");
    EXPECT_EQ(toUpperCase("Pump_1 `{az}@[AZ]~"), "PUMP_1 `{AZ}@[AZ]~");
    EXPECT_EQ(toUpperCase(std::string("a\0b", 3)), std::string("A\0B", 3));
}

TEST(UpperCase, LettersOfOtherScriptsChange)
{
    EXPECT_EQ(toUpperCase("\xC3\xA4\xC3\xB6\xC3\xBC\xC3\xBF"), "\xC3\x84\xC3\x96\xC3\x9C\xC5\xB8");
    EXPECT_EQ(toUpperCase("\xCE\xB1\xCF\x89\xCF\x82"), "\xCE\x91\xCE\xA9\xCE\xA3");
    EXPECT_EQ(toUpperCase("\xD0\xB6\xD1\x8F"), "\xD0\x96\xD0\xAF");
    EXPECT_EQ(toUpperCase("\xF0\x90\x90\xA8"), "\xF0\x90\x90\x80");
}

TEST(UpperCase, CapitalMayTakeAnotherNumberOfBytes)
{
    EXPECT_EQ(toUpperCase("\xC4\xB1"
                          "x"),
              "IX");
    EXPECT_EQ(toUpperCase("\xC9\x90"), "\xE2\xB1\xAF");
    EXPECT_EQ(toUpperCase("\xC2\xB5"), "\xCE\x9C");
}

TEST(UpperCase, LettersWhoseCapitalIsLongerStay)
{
    EXPECT_EQ(toUpperCase("Stra\xC3\x9F"
                          "e"),
              "STRA\xC3\x9F"
              "E");
    EXPECT_EQ(toUpperCase("\xC5\x89\xC7\xB0\xEF\xAC\x81"), "\xC5\x89\xC7\xB0\xEF\xAC\x81");
}

TEST(UpperCase, WhatIsNoLetterOrNoUtf8Stays)
{
    EXPECT_EQ(toUpperCase("20 \xC2\xB0"
                          "c \xE2\x82\xAC \xF0\x9F\x98\x80"),
              "20 \xC2\xB0"
              "C \xE2\x82\xAC \xF0\x9F\x98\x80");
    EXPECT_EQ(toUpperCase("a\xFF"
                          "b\xC3"
                          "c\xE2\x82"),
              "A\xFF"
              "B\xC3"
              "C\xE2\x82");
}

TEST(UpperCase, LongTextsChangeAtEveryPlace)
{
    for (std::size_t place = 0; place < 100; ++place)
    {
        std::string text(100, '-');
        std::string expected(100, '-');
        text.replace(place, 1,
                     "\xC3\xBC"
                     "z");
        expected.replace(place, 1,
                         "\xC3\x9C"
                         "Z");
        EXPECT_EQ(toUpperCase(text), expected);
    }
}

TEST(UpperCase, IsAppendedBehindWhatIsThere)
{
    std::string text = "abc";
    appendUpperCase(text, "def");
    EXPECT_EQ(text, "abcDEF");
}
