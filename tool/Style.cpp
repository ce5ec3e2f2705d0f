#include "tool/Style.h"

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
    constexpr char firstPrintable = ' ';
    constexpr char deleteCharacter = '\x7f';
    std::string shown(text);
    std::ranges::replace_if(
        shown, [](char c) { return (static_cast<unsigned char>(c) < firstPrintable) || c == deleteCharacter; }, '?');
    return shown;
}
