#pragma once

/// True for the blanks that C skips in front of a number: space, tab and the line and page ends.
constexpr bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
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
