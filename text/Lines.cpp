#include "text/Lines.h"

#include <cstring>

// In place, because a file may have 200 MB and a second copy of it would be needed for this moment only.

std::string joinLines(std::string text)
{
    // Lines move towards the front while the search runs ahead of them, so no byte is overwritten before it is read.
    std::size_t length = 0;
    forEachLine(text,
                [&text, &length](std::string_view line)
                {
                    char* const place = text.data() + length;
                    if (place != line.data())
                        std::memmove(place, line.data(), line.size());
                    length += line.size();
                });
    text.resize(length);
    return text;
}
