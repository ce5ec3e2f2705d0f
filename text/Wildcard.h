#pragma once

#include <string_view>

/// True when the whole text matches the pattern: "*" stands for any run of characters, also for none, "?" for exactly
/// one character, everything else for itself.
///
/// Takes time proportional to text times pattern at worst, however many "*" there are.
/// @param pattern  UTF-8, in the letter case of the text
/// @param text     UTF-8
bool matchesWildcard(std::string_view pattern, std::string_view text);
