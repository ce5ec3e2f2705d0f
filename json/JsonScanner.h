#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The kinds of pieces that a JSON text consists of.
enum class JsonToken
{
    OpenBracket,
    CloseBracket,
    Comma,
    Colon,
    String,
    Word, ///< a number, true, false or null
    End,  ///< after the last token
    Bad   ///< not a token: a comment or string that is not closed, an escape that is not whole, an unknown word
};

/// Takes a JSON text apart, and writes its strings and words as the standard has them.
///
/// Space and tab are the blanks, and a comment counts as one. A comment is "//" to the end of the text, or what stands
/// between "/*" and "*/".
class JsonScanner
{
public:
    /// @param joined  UTF-8 without line ends; has to last as long as the scanner
    explicit JsonScanner(std::string_view joined) : text(joined) {}

    /// Goes on to the next token.
    JsonToken next();

    /// The token in strict JSON, a string without its quotes; valid until the next one is asked for.
    std::string_view strictText() const { return strict; }

private:
    bool skipBlanks();
    JsonToken takeSign(JsonToken sign);
    JsonToken takeString();
    bool takeEscape();
    JsonToken takeWord();

    std::string_view text;
    std::size_t position = 0;
    std::string strict;
};
