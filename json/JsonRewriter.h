#pragma once

#include "json/JsonScanner.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Writes strict JSON for the tokens of a text that need not be strict; `toStrictJson` lists what is tolerated.
///
/// It looks at one token at a time and never back. Open brackets are kept in a text of their own, not on the call
/// stack, so any depth will do.
class JsonRewriter
{
public:
    /// @param length  bytes of the text that is rewritten: room for about as many is taken at once
    explicit JsonRewriter(std::size_t length) { strict.reserve(length); }

    /// Takes the next token, which is not the end.
    /// @param tokenText  the token in strict JSON, a string without its quotes
    /// @return false when it may not stand here; the text is refused then, and nothing more may be taken
    bool take(JsonToken token, std::string_view tokenText);

    /// What was written, which is handed over.
    /// @return nothing when the tokens so far are not a whole document
    std::optional<std::string> finish();

private:
    /// Where the next token stands. A comma is written together with what follows it: it may have to be dropped.
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

    bool takeAt(JsonToken token, std::string_view tokenText);
    bool takeString(std::string_view content);
    bool takeWord(std::string_view word);
    bool openBracket(char bracket);
    bool closeBracket(char bracket);
    bool takeComma();
    bool takeColon();
    bool beginValue();
    void beginKey();
    void endValue();

    std::string strict;
    std::string openBrackets;
    Place place = Place::Root;
    bool afterString = false; ///< the last token was a string, which a further string continues
};
