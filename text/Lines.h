#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

/// What ends a line in the files that this platform writes.
#ifdef _WIN32
constexpr std::string_view nativeLineEnd = "\r\n";
#else
constexpr std::string_view nativeLineEnd = "\n";
#endif

/// Hands each line to `take`, without its end, first to last.
///
/// Lines end with CR LF, CR or LF and with nothing else. A last line without an end counts; after a final line end
/// there is no further, empty line.
/// @param take  called with a std::string_view into `text`
template <class F>
void forEachLine(std::string_view text, F take)
{
    constexpr auto none = std::string_view::npos;
    // Both searches look ahead once and are repeated only after what they found: a text that holds one kind of end
    // alone is not searched for the other kind line by line.
    std::size_t carriageReturn = text.find('\r');
    std::size_t lineFeed = text.find('\n');
    std::size_t start = 0;
    while (start < text.size())
    {
        const std::size_t end = std::min({carriageReturn, lineFeed, text.size()});
        const std::string_view line = text.substr(start, end - start);
        start = end == carriageReturn && lineFeed == end + 1 ? end + 2 : end + 1;
        if (carriageReturn != none && carriageReturn < start)
            carriageReturn = text.find('\r', start);
        if (lineFeed != none && lineFeed < start)
            lineFeed = text.find('\n', start);
        take(line);
    }
}

/// Puts all lines into one, with nothing between them.
std::string joinLines(std::string text);
