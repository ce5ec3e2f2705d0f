#include "json/StrictJson.h"

#include "json/JsonScanner.h"

#include <string_view>

// What may stand where, and what is written for it ("-": the text is refused):
//
//   place         value         string           comma               colon          closing bracket
//   -----------   -----------   --------------   -----------------   ------------   -----------------
//   Root          done          done             -                   -              -
//   ArrayStart    done          done             null, ArrayNext     -              done
//   ArrayNext     "," done      "," done         ",null" ArrayNext   -              comma lost, done
//   ObjectStart   -             key, Colon       -                   -              done
//   ObjectNext    -             "," key, Colon   -                   -              comma lost, done
//   Colon         -             joins the key    -                   MemberValue    -
//   MemberValue   done          done             null, ObjectNext    -              null, done
//   AfterValue    -             joins a string   ...Next             -              done
//   End           -             joins a string   -                   -              -
//
// "done" leads to AfterValue inside brackets and to End outside; "...Next" is ArrayNext or ObjectNext, by the innermost
// bracket. An opening bracket begins a value and leads to ArrayStart or ObjectStart. A string joins only a string that
// is the token right before it. A text that ends anywhere but at End is refused.

namespace
{

/// Goes through the text token by token; open brackets are kept in a text of their own, so any depth will do.
class Rewriter
{
public:
    explicit Rewriter(std::string_view joined) : scanner(joined) { strict.reserve(joined.size()); }

    std::optional<std::string> rewrite()
    {
        for (;;)
        {
            const JsonToken token = scanner.next();
            if (token == JsonToken::End)
                break;
            if (!take(token))
                return std::nullopt;
            afterString = token == JsonToken::String;
        }
        // Still open, or nothing but blanks.
        if (place != Place::End)
            return std::nullopt;
        return std::move(strict);
    }

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

    bool take(JsonToken token);
    bool takeString();
    bool takeWord();
    bool openBracket(char bracket);
    bool closeBracket(char bracket);
    bool takeComma();
    bool takeColon();
    bool beginValue();
    void beginKey();
    void endValue();

    JsonScanner scanner;
    std::string strict;
    std::string openBrackets;
    Place place = Place::Root;
    bool afterString = false; ///< the last token was a string, which a further string continues
};

bool Rewriter::take(JsonToken token)
{
    switch (token)
    {
    case JsonToken::OpenBracket:
        return openBracket(scanner.strictText().front());
    case JsonToken::CloseBracket:
        return closeBracket(scanner.strictText().front());
    case JsonToken::Comma:
        return takeComma();
    case JsonToken::Colon:
        return takeColon();
    case JsonToken::String:
        return takeString();
    case JsonToken::Word:
        return takeWord();
    default:
        return false;
    }
}

bool Rewriter::takeString()
{
    if (afterString)
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
        strict += '"';
        endValue();
    }
    strict += scanner.strictText();
    strict += '"';
    return true;
}

bool Rewriter::takeWord()
{
    if (!beginValue())
        return false;
    strict += scanner.strictText();
    endValue();
    return true;
}

bool Rewriter::openBracket(char bracket)
{
    if (!beginValue())
        return false;
    strict += bracket;
    openBrackets += bracket;
    place = bracket == '[' ? Place::ArrayStart : Place::ObjectStart;
    return true;
}

bool Rewriter::closeBracket(char bracket)
{
    const char opening = bracket == ']' ? '[' : '{';
    if (!openBrackets.ends_with(opening) || place == Place::Colon)
        return false;
    // After a comma nothing is written here: that is how one comma too many is dropped.
    if (place == Place::MemberValue)
        strict += "null";
    strict += bracket;
    openBrackets.pop_back();
    endValue();
    return true;
}

/// A comma where a value is missing stands for the value null as well. Where a member is missing there is no name that
/// null could belong to.
bool Rewriter::takeComma()
{
    switch (place)
    {
    case Place::ArrayStart:
    case Place::ArrayNext:
        beginValue();
        strict += "null";
        place = Place::ArrayNext;
        return true;
    case Place::MemberValue:
        strict += "null";
        place = Place::ObjectNext;
        return true;
    case Place::AfterValue:
        place = openBrackets.ends_with('[') ? Place::ArrayNext : Place::ObjectNext;
        return true;
    default:
        return false;
    }
}

bool Rewriter::takeColon()
{
    if (place != Place::Colon)
        return false;
    strict += ':';
    place = Place::MemberValue;
    return true;
}

/// Writes what goes before a value.
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
