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
    EXPECT_EQ(wholeNumberBits("2097152e0"), 0x200000U);
    EXPECT_EQ(wholeNumberBits("0.000000001e18"), 1000000000U);
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
    EXPECT_EQ(wholeNumberBits("4294967297.5"), 1U);
    EXPECT_EQ(wholeNumberBits("-4294967297e0"), 0xFFFFFFFFU);
}

TEST(JsonNumber, ValuesBeyondAFloatingPointNumberCountAsZeroUnlessAllDigitsAreWritten)
{
    EXPECT_EQ(wholeNumberBits(std::string(400, '1')), 0xC71C71C7U);
    EXPECT_EQ(wholeNumberBits(std::string(400, '1') + ".5"), 0U);
    EXPECT_EQ(wholeNumberBits("1e400"), 0U);
}

TEST(JsonNumber, TextsThatAreNoNumbersCountAsZero)
{
    for (const char* text : {"",    " ",    "-",  "+",   ".",    "e5",  "12x",  "x12",  "1 2",      "--1",  "+-1",
                             "-+1", "0x10", "1e", "1e+", "true", "inf", "-inf", "+nan", "Infinity", "1.5.", "1\b"})
        EXPECT_EQ(wholeNumberBits(text), 0U) << text;
}

TEST(JsonNumber, DecimalTextHasNoExponentAndNoIdleZeros)
{
    EXPECT_EQ(decimalText("1e2"), "100");
    EXPECT_EQ(decimalText("1.50"), "1.5");
    EXPECT_EQ(decimalText("-2.0"), "-2");
    EXPECT_EQ(decimalText("12345e-2"), "123.45");
    EXPECT_EQ(decimalText("1E+3"), "1000");
    EXPECT_EQ(decimalText("1e-7"), "0.0000001");
    EXPECT_EQ(decimalText("1e15"), "1000000000000000");
    EXPECT_EQ(decimalText("-0"), "0");
    EXPECT_EQ(decimalText("-0.0e0"), "0");
}

TEST(JsonNumber, DecimalTextOfDigitsIsThemselves)
{
    for (const char* digits : {"0", "7", "-16", "12345678901234567890123"})
        EXPECT_EQ(decimalText(digits), digits);
    const std::string many(1000, '9');
    EXPECT_EQ(decimalText(many), many);
}

TEST(JsonNumber, NumberThatNoFloatingPointNumberHoldsHasNoDecimalText)
{
    EXPECT_EQ(decimalText("1e999"), "");
    EXPECT_EQ(decimalText("-1e999999999999"), "");
    EXPECT_EQ(decimalText("1e308").size(), 309U);
    EXPECT_EQ(decimalText("5e-324").size(), 326U);
}
