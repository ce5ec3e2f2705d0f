#include "json/JsonScanner.h"

#include "json/JsonEscape.h"
#include "json/JsonNumber.h"
#include "text/Characters.h"

#include <algorithm>
#include <array>

// What each kind of token becomes in strict JSON:
//
//   in the file                  strict text
//   --------------------------   ------------------------------------------------------------
//   { } [ ] , :                  itself
//   "text"                       its content without the quotes, control characters as "\u0009"
//   True, NULL                   the word in small letters
//   12, -0.5                     itself
//   1e50, 400 digits             its decimal text as a string, quotes included; "" when it is out of range, as 1e400 is
//   /* ... */, // ...            nothing, like a blank
//
// Quotes of strings are left to whoever asks: a string may go on in the next token.

namespace
{

/// Line ends are gone by now; page ends and other blanks are none to JSON.
bool isJsonBlank(char c)
{
    return c == ' ' || c == '\t';
}

/// True for what ends a number or a literal. A slash begins a comment, so "1/**/" is a number and a blank.
bool endsWord(char c)
{
    return isJsonBlank(c) || std::string_view("{}[],:\"/").find(c) != std::string_view::npos;
}

bool isControlCharacter(char c)
{
    return static_cast<unsigned char>(c) < 0x20;
}

/// True for what does not stand for itself inside a string.
bool isSpecialInString(char c)
{
    return c == '"' || c == '\\' || isControlCharacter(c);
}

/// The literal that the word is in some letter case, or the empty text.
std::string_view literalOf(std::string_view word)
{
    constexpr std::array<std::string_view, 3> literals{"true", "false", "null"};
    for (const std::string_view literal : literals)
    {
        if (std::ranges::equal(word, literal, {}, lowerCase))
            return literal;
    }
    return {};
}

/// True for a number whose exponent or length may take it out of the range of a floating-point number, 308 digits. Not
/// every parser of strict JSON takes such a number, even when it is asked to hand on all of them unread
/// (RapidJSON 1.1).
bool mayBeOutOfRange(std::string_view number)
{
    constexpr std::size_t safeLength = 300;
    return number.size() > safeLength || number.find_first_of("eE") != std::string_view::npos;
}

/// The beginning of a text, up to the first character that ends it.
std::string_view runUpTo(std::string_view text, bool (*endsRun)(char))
{
    return {text.data(), std::find_if(text.data(), text.data() + text.size(), endsRun)};
}

/// A control character as an escape. It may stand in the files as it is, but not in strict JSON.
void appendEscaped(std::string& target, char controlCharacter)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(controlCharacter);
    target += "\\u00";
    target += digits[code / 16];
    target += digits[code % 16];
}

} // namespace

JsonToken JsonScanner::next()
{
    if (!skipBlanks())
        return JsonToken::Bad;
    if (position == text.size())
        return JsonToken::End;
    switch (text[position])
    {
    case '{':
    case '[':
        return takeSign(JsonToken::OpenBracket);
    case '}':
    case ']':
        return takeSign(JsonToken::CloseBracket);
    case ',':
        return takeSign(JsonToken::Comma);
    case ':':
        return takeSign(JsonToken::Colon);
    case '"':
        return takeString();
    default:
        // A single quote lands here too and is not a word: only double quotes are strings.
        return takeWord();
    }
}

/// @return false when a comment is not closed
bool JsonScanner::skipBlanks()
{
    for (;;)
    {
        while (position < text.size() && isJsonBlank(text[position]))
            ++position;
        const std::string_view ahead = text.substr(position, 2);
        if (ahead == "//")
        {
            // All lines are one by now, so the comment takes in the rest of the file.
            position = text.size();
        }
        else if (ahead == "/*")
        {
            // From after the opening: "/*/" is a comment that is still open.
            const std::size_t end = text.find("*/", position + 2);
            if (end == std::string_view::npos)
                return false;
            position = end + 2;
        }
        else
        {
            return true;
        }
    }
}

JsonToken JsonScanner::takeSign(JsonToken sign)
{
    strict = text[position++];
    return sign;
}

JsonToken JsonScanner::takeString()
{
    strict.clear();
    ++position;
    for (;;)
    {
        // Nearly all of a string is plain; it is taken a run at a time.
        const std::string_view plain = runUpTo(text.substr(position), isSpecialInString);
        strict += plain;
        position += plain.size();
        // The closing quote is missing. Where the string should have ended nobody can tell.
        if (position == text.size())
            return JsonToken::Bad;
        // A backslash is looked at before the quote, which it may take the meaning from.
        if (text[position] == '\\')
        {
            if (!takeEscape())
                return JsonToken::Bad;
            continue;
        }
        const char special = text[position++];
        // A quote that is not escaped ends the string, any other character here is a control character.
        if (special == '"')
            return JsonToken::String;
        appendEscaped(strict, special);
    }
}

/// Takes an escape as it is. Neighbouring strings are joined later, when two halves would look like a whole one.
/// @return false when it is not whole
bool JsonScanner::takeEscape()
{
    const std::size_t length = escapeLength(text.substr(position));
    strict += text.substr(position, length);
    position += length;
    return length > 0;
}

JsonToken JsonScanner::takeWord()
{
    const std::string_view word = runUpTo(text.substr(position), endsWord);
    position += word.size();
    strict = literalOf(word);
    if (!strict.empty())
        return JsonToken::Word;
    // Nothing that strict JSON would refuse is mended here: 01, +1 and .5 may be anybody's mistake.
    if (!isJsonNumber(word))
        return JsonToken::Bad;
    // As a string it passes the parser, and the reader of the document gets text for a number either way.
    strict = mayBeOutOfRange(word) ? '"' + decimalText(word) + '"' : std::string(word);
    return JsonToken::Word;
}
