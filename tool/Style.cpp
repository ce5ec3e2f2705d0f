#include "tool/Style.h"

#include "text/Utf8.h"
#include "tool/Terminal.h"

#include <array>
#include <cstdlib>

namespace
{

constexpr std::array<std::string_view, 6> codes{"\x1b[1m",  "\x1b[1;31m", "\x1b[1;35m",
                                                "\x1b[32m", "\x1b[31m",   "\x1b[33m"};

bool isDumb(const char* terminal)
{
    return terminal == nullptr || std::string_view(terminal) == "dumb";
}

/// True for what a terminal does not show but obeys: control characters, and those that turn the direction of the text,
/// with which a line can look like another one.
bool isCommand(char32_t codePoint)
{
    const auto among = [codePoint](char32_t first, char32_t last) { return codePoint >= first && codePoint <= last; };
    return among(0, 0x1F) || among(0x7F, 0x9F) || among(0x202A, 0x202E) || among(0x2066, 0x2069);
}

} // namespace

Style Style::forOutput()
{
    return Style(outputIsTerminal() && std::getenv("NO_COLOR") == nullptr && !isDumb(std::getenv("TERM")));
}

void Style::append(std::string& to, Tone tone, std::string_view text) const
{
    if (coloured)
        to += codes[static_cast<std::size_t>(tone)];
    to += text;
    if (coloured)
        to += "\x1b[0m";
}

std::string printable(std::string_view text)
{
    std::string shown;
    shown.reserve(text.size());
    for (std::size_t at = 0; at < text.size();)
    {
        const Utf8Character character = characterAt(text, at);
        if (!character.valid || isCommand(character.codePoint))
            shown += '?';
        else
            shown += text.substr(at, character.length);
        at += character.length;
    }
    return shown;
}
