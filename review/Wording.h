#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// How findings and changes put things.

/// A text between quotation marks.
inline std::string inQuotes(std::string_view text)
{
    return '"' + std::string(text) + '"';
}

/// A number and what there is of it, such as "1 register" and "2 registers".
inline std::string counted(std::int64_t count, std::string_view noun)
{
    return std::to_string(count) + ' ' + std::string(noun) + (count == 1 ? "" : "s");
}
