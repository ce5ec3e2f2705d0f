#pragma once

#include <string_view>

/// True for the blanks that C skips in front of a number: space, tab and the line and page ends.
constexpr bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// The text from its first character on that is not blank.
constexpr std::string_view withoutLeadingBlanks(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    return text;
}

/// The text without the blanks at both ends.
constexpr std::string_view withoutOuterBlanks(std::string_view text)
{
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return withoutLeadingBlanks(text);
}

/// True for a line without anything to read.
constexpr bool isBlankLine(std::string_view line)
{
    return withoutLeadingBlanks(line).empty();
}

/// True for the digits of decimal numbers.
constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The small letter of one of the 26 capitals, everything else as it is: for words that the program itself knows.
constexpr char lowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// True for the first half of a character that UTF-16 writes in two units.
constexpr bool isHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

/// True for the second half.
constexpr bool isLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// The character that UTF-16 writes in these two units.
constexpr char32_t characterOfPair(char32_t highSurrogate, char32_t lowSurrogate)
{
    return 0x10000U + ((highSurrogate - 0xD800U) << 10U) + (lowSurrogate - 0xDC00U);
}
