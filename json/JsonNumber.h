#pragma once

#include <cstdint>
#include <string_view>

/// True for a number as JSON writes it: digits without leading zeros, with an optional minus, fraction and exponent.
bool isJsonNumber(std::string_view text);

/// Reads a decimal number of any length, which may have a sign, a fraction and an exponent, with blanks around it.
/// @return the low 32 bits of its whole part, negative numbers in two's complement; 0 when the text is no number
std::uint32_t wholeNumberBits(std::string_view text);
