#pragma once

#include <string>
#include <string_view>

/// Carrying any bytes through an interface that takes well-formed text only. File names are bytes, in no encoding.

/// Bytes as well-formed UTF-8. What is UTF-8 already stays as it is; every byte that belongs to no character becomes a
/// character of its own from the end of the last private-use plane, U+10FF80 to U+10FFFF. So do the bytes of those few
/// characters themselves: the way back is exact.
std::string escapeBytes(std::string_view bytes);

/// The bytes that a text made by `escapeBytes` stands for. Any other text is answered unchanged.
std::string unescapeBytes(std::string_view text);
