#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// How findings and changes put things into words.

/// A text between quotation marks, so that its blanks are seen. Those inside it stay as they are: it is for people.
inline std::string inQuotes(std::string_view text)
{
    return '"' + std::string(text) + '"';
}

/// A number and what there is of it, such as "1 register" and "2 registers".
/// @param count  any number; all but 1 take the plural, 0 and -1 too
/// @param noun   its singular, one that takes an "s" for the plural
inline std::string counted(std::int64_t count, std::string_view noun)
{
    return std::to_string(count) + ' ' + std::string(noun) + (count == 1 ? "" : "s");
}
