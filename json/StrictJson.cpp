#include "json/StrictJson.h"

#include "json/JsonEscape.h"
#include "json/JsonNumber.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace
{

/// Line ends are gone by now, and other blanks are none to JSON.
bool isJsonBlank(char c)
{
    return c == ' ' || c == '\t';
}

/// True for what ends a number or a literal.
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

char lowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
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

/// True for a number whose exponent or length may take it out of the range of a floating-point number.
bool mayBeOutOfRange(std::string_view number)
{
    constexpr std::size_t safeLength = 300;
    return number.size() > safeLength || number.find_first_of("eE") != std::string_view::npos;
}

/// Goes through the text token by token; open brackets are kept in a text of their own, so any depth will do.
class Rewriter
{
public:
    explicit Rewriter(std::string_view joined) : text(joined) { strict.reserve(text.size()); }

    std::optional<std::string> rewrite()
    {
        for (;;)
        {
            if (!skipBlanks())
                return std::nullopt;
            if (position == text.size())
                break;
            if (!takeToken())
                return std::nullopt;
        }
        if (place != Place::End)
            return std::nullopt;
        return std::move(strict);
    }

private:
    /// Where the next token stands. A comma is written together with what follows it.
    enum class Place
    {
        Root,
        ArrayStart,
        ArrayNext,
        ObjectStart,
        ObjectNext,
        Colon,
        MemberValue,
        AfterValue,
        End
    };

    bool skipBlanks();
    bool takeToken();
    bool takeString();
    bool takeContent();
    void appendEscaped(char controlCharacter);
    bool takeWord();
    bool openBracket(char bracket);
    bool closeBracket(char bracket);
    bool takeComma();
    bool takeColon();
    bool beginValue();
    void beginKey();
    void endValue();

    std::string_view text;
    std::size_t position = 0;
    std::string strict;
    std::string openBrackets;
    Place place = Place::Root;
    bool behindString = false; ///< the last token was a string, which a further string continues
};

/// @return false when a comment is not closed
bool Rewriter::skipBlanks()
{
    constexpr auto none = std::string_view::npos;
    for (;;)
    {
        while (position < text.size() && isJsonBlank(text[position]))
            ++position;
        const std::string_view ahead = text.substr(position, 2);
        if (ahead == "//")
        {
            position = text.size();
        }
        else if (ahead == "/*")
        {
            const std::size_t end = text.find("*/", position + 2);
            if (end == none)
                return false;
            position = end + 2;
        }
        else
        {
            return true;
        }
    }
}

bool Rewriter::takeToken()
{
    const char c = text[position];
    if (c == '"')
        return takeString();
    behindString = false;
    switch (c)
    {
    case '{':
    case '[':
        return openBracket(c);
    case '}':
    case ']':
        return closeBracket(c);
    case ',':
        return takeComma();
    case ':':
        return takeColon();
    default:
        return takeWord();
    }
}

bool Rewriter::takeString()
{
    if (behindString)
    {
        strict.pop_back(); // the quote that closed the string before
    }
    else if (place == Place::ObjectStart || place == Place::ObjectNext)
    {
        beginKey();
        strict += '"';
    }
    else
    {
        if (!beginValue())
            return false;
        endValue();
        strict += '"';
    }
    ++position;
    if (!takeContent())
        return false;
    strict += '"';
    behindString = true;
    return true;
}

/// Takes the inside of a string and the quote that closes it.
/// @return false when the string is not closed, or holds an escape that is not whole
bool Rewriter::takeContent()
{
    for (;;)
    {
        const auto* const start = text.begin() + static_cast<std::ptrdiff_t>(position);
        const std::string_view plain(start, std::find_if(start, text.end(), isSpecialInString));
        strict += plain;
        position += plain.size();
        if (position == text.size())
            return false;
        const char special = text[position];
        if (special == '"')
        {
            ++position;
            return true;
        }
        if (special == '\\')
        {
            const std::size_t length = escapeLength(text.substr(position));
            if (length == 0)
                return false;
            strict += text.substr(position, length);
            position += length;
        }
        else
        {
            appendEscaped(special);
            ++position;
        }
    }
}

void Rewriter::appendEscaped(char controlCharacter)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(controlCharacter);
    strict += "\\u00";
    strict += digits[code / 16];
    strict += digits[code % 16];
}

bool Rewriter::takeWord()
{
    const auto* const first = text.begin() + static_cast<std::ptrdiff_t>(position);
    const auto* const end = std::find_if(first, text.end(), endsWord);
    const std::string_view word(first, end);
    const std::string_view literal = literalOf(word);
    if ((literal.empty() && !isJsonNumber(word)) || !beginValue())
        return false;
    if (!literal.empty())
        strict += literal;
    else if (mayBeOutOfRange(word))
        strict.append(1, '"').append(decimalText(word)).append(1, '"');
    else
        strict += word;
    endValue();
    position += word.size();
    return true;
}

bool Rewriter::openBracket(char bracket)
{
    if (!beginValue())
        return false;
    strict += bracket;
    openBrackets += bracket;
    place = bracket == '[' ? Place::ArrayStart : Place::ObjectStart;
    ++position;
    return true;
}

bool Rewriter::closeBracket(char bracket)
{
    const char opening = bracket == ']' ? '[' : '{';
    if (!openBrackets.ends_with(opening) || place == Place::Colon)
        return false;
    if (place == Place::MemberValue)
        strict += "null";
    strict += bracket;
    openBrackets.pop_back();
    endValue();
    ++position;
    return true;
}

bool Rewriter::takeComma()
{
    switch (place)
    {
    case Place::ArrayStart:
    case Place::ArrayNext:
        beginValue();
        strict += "null";
        place = Place::ArrayNext;
        break;
    case Place::MemberValue:
        strict += "null";
        place = Place::ObjectNext;
        break;
    case Place::AfterValue:
        place = openBrackets.ends_with('[') ? Place::ArrayNext : Place::ObjectNext;
        break;
    default:
        return false;
    }
    ++position;
    return true;
}

bool Rewriter::takeColon()
{
    if (place != Place::Colon)
        return false;
    strict += ':';
    place = Place::MemberValue;
    ++position;
    return true;
}

/// Writes what goes in front of a value.
/// @return false where no value may stand
bool Rewriter::beginValue()
{
    if (place == Place::ArrayNext)
        strict += ',';
    return place == Place::Root || place == Place::ArrayStart || place == Place::ArrayNext ||
           place == Place::MemberValue;
}

void Rewriter::beginKey()
{
    if (place == Place::ObjectNext)
        strict += ',';
    place = Place::Colon;
}

void Rewriter::endValue()
{
    place = openBrackets.empty() ? Place::End : Place::AfterValue;
}

} // namespace

std::optional<std::string> toStrictJson(std::string_view joined)
{
    return Rewriter(joined).rewrite();
}
