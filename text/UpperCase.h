#pragma once

#include <string>
#include <string_view>

/// The text in upper case by Unicode, character by character, whatever the user's language.
///
/// Letters whose capital is longer than one character stay, and so do bytes that are not UTF-8.
std::string toUpperCase(std::string_view utf8);

/// Appends the text in upper case to `target`.
void appendUpperCase(std::string& target, std::string_view utf8);
