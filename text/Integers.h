#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Reads a base-10 integer as C does: blanks, one optional sign, digits; what follows is ignored.
/// @return the value, saturating at the ends of 32 bits; 0 when there are no digits
std::int32_t parseInteger(std::string_view text);

/// True for what `parseInteger` reads as the number that it looks like: nothing stands behind the digits, and there are
/// some. It may still be too large for 32 bits.
bool isWholeNumber(std::string_view text);

/// Reads a base-16 integer without sign: blanks, an optional "0x", hexadecimal digits; what follows is ignored.
/// @return the low 32 bits of the value; 0 when there are no digits
std::uint32_t parseHexadecimal(std::string_view text);

/// An address as files and grids show it: decimal, zero-padded to five digits ("%05d").
std::string addressText(std::uint32_t address);
