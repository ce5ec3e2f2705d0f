#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Rewrites what JSON files written by people and older tools hold into JSON as the standard has it.
///
/// - Space and tab are the blanks. A comment, "//" to the end of the text or between "/*" and "*/", counts as one.
/// - true, false and null may be written in any letter case.
/// - A missing value is null: after the colon of a member, and before a comma of an array.
/// - Strings that follow each other, with nothing but blanks between them, are one string; keys too.
/// - One comma before a closing bracket is dropped and adds no element.
/// - Control characters inside strings stand for themselves; they are written as escapes.
/// - Numbers that may leave the range of a floating-point number are written as strings of their decimal text.
///
/// Everything else stays as it is, so strict JSON keeps its meaning.
/// @param joined  UTF-8 without line ends
/// @return nothing when brackets, commas, colons and values do not follow each other as they have to, or when a string
///         holds an escape that is unknown or not whole
std::optional<std::string> toStrictJson(std::string_view joined);
