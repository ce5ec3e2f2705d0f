#pragma once

/// True for the blanks that C skips in front of a number: space, tab and the line and page ends.
constexpr bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}
