#include "json/JsonNumber.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

std::int32_t signedNumber(std::string_view text)
{
    return static_cast<std::int32_t>(wholeNumberBits(text));
}

} // namespace

TEST(JsonNumber, WhatTheStandardWritesIsANumber)
{
    for (const char* text : {"0", "-0", "7", "120", "-3", "0.5", "12.250", "1e3", "1E+3", "1.5e-3", "-0.0e0"})
        EXPECT_TRUE(isJsonNumber(text)) << text;
}

TEST(JsonNumber, EverythingElseIsNone)
{
    for (const char* text : {"", "-", "+1", "01", "-01", ".5", "5.", "1e", "1e+", "1.e1", "0x10", "1 ", " 1", "1-",
                             "1.2.3", "1e5.0", "NaN", "Infinity"})
        EXPECT_FALSE(isJsonNumber(text)) << text;
}

TEST(JsonNumber, WholeNumbersHaveTheirValue)
{
    EXPECT_EQ(wholeNumberBits("0"), 0U);
    EXPECT_EQ(wholeNumberBits("300"), 300U);
    EXPECT_EQ(wholeNumberBits("2097152"), 0x200000U);
    EXPECT_EQ(signedNumber("-1"), -1);
    EXPECT_EQ(wholeNumberBits(" +007 "), 7U);
}

TEST(JsonNumber, FractionsAreCutTowardsZero)
{
    EXPECT_EQ(signedNumber("2.9"), 2);
    EXPECT_EQ(signedNumber("-2.9"), -2);
    EXPECT_EQ(signedNumber("0.99"), 0);
    EXPECT_EQ(signedNumber(".5"), 0);
    EXPECT_EQ(signedNumber("5."), 5);
}

TEST(JsonNumber, ExponentsMoveTheDecimalPoint)
{
    EXPECT_EQ(wholeNumberBits("1e2"), 100U);
    EXPECT_EQ(wholeNumberBits("1.2345E3"), 1234U);
    EXPECT_EQ(wholeNumberBits("0.012e+3"), 12U);
    EXPECT_EQ(wholeNumberBits("12345e-2"), 123U);
    EXPECT_EQ(wholeNumberBits("1e-5"), 0U);
    EXPECT_EQ(wholeNumberBits("1e31"), 0x80000000U);
    EXPECT_EQ(wholeNumberBits("1e32"), 0U);
    EXPECT_EQ(wholeNumberBits("1e999999999999"), 0U);
    EXPECT_EQ(wholeNumberBits("1e-999999999999"), 0U);
}

TEST(JsonNumber, ValuesBeyond32BitsKeepTheirLowBits)
{
    EXPECT_EQ(wholeNumberBits("2147483647"), 0x7FFFFFFFU);
    EXPECT_EQ(wholeNumberBits("2147483648"), 0x80000000U);
    EXPECT_EQ(wholeNumberBits("4294967295"), 0xFFFFFFFFU);
    EXPECT_EQ(wholeNumberBits("4294967296"), 0U);
    EXPECT_EQ(wholeNumberBits("4297064448"), 0x200000U);
    EXPECT_EQ(wholeNumberBits("-2147483649"), 0x7FFFFFFFU);
    EXPECT_EQ(wholeNumberBits("18446744073709551617"), 1U);
    EXPECT_EQ(wholeNumberBits(std::string(400, '1') + ".5"), wholeNumberBits(std::string(400, '1')));
}

TEST(JsonNumber, TextsThatAreNoNumbersCountAsZero)
{
    for (const char* text :
         {"", " ", "-", "+", ".", "e5", "12x", "x12", "1 2", "--1", "+-1", "0x10", "1e", "1e+", "true"})
        EXPECT_EQ(wholeNumberBits(text), 0U) << text;
}
