#include "text/UpperCase.h"

#include "text/Utf8.h"

#include <utf8proc.h>

#include <cstddef>

// Searching in any letter case compares capitals, of the tags made once and of what is typed at each keystroke. Letter
// by letter and by no language's rules: the same search finds the same tags everywhere, on a Turkish desktop too.

namespace
{

/// ASCII does without the library, which would take 57 ms more for the texts of 65,536 tags at start.
void appendUpperCaseAscii(std::string& target, std::string_view ascii)
{
    const std::size_t start = target.size();
    target.append(ascii);
    char* const end = target.data() + target.size();
    for (char* place = target.data() + start; place != end; ++place)
        *place = static_cast<char>(*place - (*place >= 'a' && *place <= 'z' ? 'a' - 'A' : 0));
}

char32_t upperCase(char32_t codePoint)
{
    // Its capital is "SS"; the library prefers the rare single letter.
    constexpr char32_t sharpS = 0xDF;
    if (codePoint == sharpS)
        return codePoint;
    return static_cast<char32_t>(utf8proc_toupper(static_cast<utf8proc_int32_t>(codePoint)));
}

} // namespace

std::string toUpperCase(std::string_view utf8)
{
    std::string upper;
    upper.reserve(utf8.size());
    appendUpperCase(upper, utf8);
    return upper;
}

void appendUpperCase(std::string& target, std::string_view utf8)
{
    std::size_t position = 0;
    while (position < utf8.size())
    {
        // By turns: a run of ASCII, which may be empty, and one character that is not.
        const std::size_t run = asciiRunLength(utf8, position);
        appendUpperCaseAscii(target, utf8.substr(position, run));
        position += run;
        if (position == utf8.size())
            break;
        const Utf8Character character = characterAt(utf8, position);
        // What is not UTF-8 has no case; it can still be searched for.
        if (character.valid)
            appendCharacter(target, upperCase(character.codePoint));
        else
            target.append(utf8.substr(position, character.length));
        position += character.length;
    }
}
