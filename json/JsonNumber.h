#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// True for a number as JSON writes it: digits without leading zeros, with an optional minus, fraction and exponent.
bool isJsonNumber(std::string_view text);

/// The decimal text of a number, without exponent and without zeros that say nothing: "1e2" is "100", "1.50" is "1.5".
///
/// Whole numbers keep all their digits; others are those of the nearest floating-point number.
/// @param number  as `isJsonNumber` demands
/// @return the empty text when the number has a fraction or an exponent and is out of a floating-point number's range
std::string decimalText(std::string_view number);

/// Reads a decimal number, which may have a sign, a fraction and an exponent, with blanks around it.
///
/// Whole numbers may have any length; one with a fraction or an exponent is as exact as a floating-point number.
/// @return the low 32 bits of its whole part, negative numbers in two's complement; 0 when the text is not a number or
///         one that is out of a floating-point number's range
std::uint32_t wholeNumberBits(std::string_view text);
