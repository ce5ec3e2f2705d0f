#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Length of the escape that a text begins with, as JSON writes it inside a string.
///
/// Two "\u" escapes that stand for one character, a high surrogate and its low one, are one escape of 12 bytes.
/// @param text  begins with a backslash
/// @return 2, 6 or 12; 0 for an escape that JSON does not have, for one that is cut off, and for half a pair
std::size_t escapeLength(std::string_view text);

/// Appends what an escape stands for.
/// @param escape  one escape, as long as `escapeLength` says
void appendUnescaped(std::string& target, std::string_view escape);
