#include "tool/Style.h"

#include "text/Utf8.h"
#include "tool/Terminal.h"

#include <algorithm>
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

/// How many characters at the beginning of a text are ASCII and visible or a blank.
std::size_t plainPart(std::string_view text)
{
    const auto isPlain = [](char c) { return c >= ' ' && c <= '~'; };
    const auto end = std::ranges::find_if_not(text, isPlain);
    return static_cast<std::size_t>(end - text.begin());
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
    appendPrintable(shown, text);
    return shown;
}

void appendPrintable(std::string& to, std::string_view text)
{
    while (true)
    {
        // Most texts are of this kind as a whole: looking at each character takes 20 ms of a report of 90,000 lines.
        const std::size_t plain = plainPart(text);
        to += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty())
            return;
        const Utf8Character character = characterAt(text, 0);
        if (character.valid && !isCommand(character.codePoint))
            to += text.substr(0, character.length);
        else
            to += '?';
        text.remove_prefix(character.length);
    }
}
