#pragma once

#include <string>
#include <string_view>

/// What a piece of text means to the eye.
enum class Tone
{
    Place, ///< where something is
    Error,
    Warning,
    Added,
    Removed,
    Changed
};

/// Colours texts for a terminal, or leaves them plain.
class Style
{
public:
    explicit Style(bool withColours) : coloured(withColours) {}

    /// Colours when standard output is a terminal that knows them and the environment does not hold NO_COLOR.
    static Style forOutput();

    /// Appends a text in the colour of its tone.
    void append(std::string& to, Tone tone, std::string_view text) const;

private:
    bool coloured;
};

/// The text with a "?" for each control character, each character that turns the direction of the text, and each byte
/// that is no UTF-8: names come from files, and a line has to stay one line and must not command the terminal.
std::string printable(std::string_view text);

/// Appends the printable form of a text.
void appendPrintable(std::string& to, std::string_view text);
