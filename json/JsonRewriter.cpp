#include "json/JsonRewriter.h"

#include <utility>

// The way through the places, an array above and an object below. A closing bracket may end each of them but Colon: it
// completes the value that its opening bracket began.
//
//   "[" --> ArrayStart --value--> AfterValue --","--> ArrayNext
//                                  ^                       |
//                                  +--------- value -------+
//
//   "{" --> ObjectStart --key--> Colon --":"--> MemberValue --value--> AfterValue --","--> ObjectNext
//                                  ^                                                           |
//                                  +--------------------------- key ---------------------------+
//
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

bool JsonRewriter::take(JsonToken token, std::string_view tokenText)
{
    // Whether it follows a string is asked while it is taken, so the note about the token before goes only afterwards.
    const bool taken = takeAt(token, tokenText);
    afterString = token == JsonToken::String;
    return taken;
}

std::optional<std::string> JsonRewriter::finish()
{
    // Still open, or nothing but blanks.
    if (place != Place::End)
        return std::nullopt;
    return std::move(strict);
}

bool JsonRewriter::takeAt(JsonToken token, std::string_view tokenText)
{
    switch (token)
    {
    case JsonToken::OpenBracket:
        return openBracket(tokenText.front());
    case JsonToken::CloseBracket:
        return closeBracket(tokenText.front());
    case JsonToken::Comma:
        return takeComma();
    case JsonToken::Colon:
        return takeColon();
    case JsonToken::String:
        return takeString(tokenText);
    case JsonToken::Word:
        return takeWord(tokenText);
    default:
        return false;
    }
}

bool JsonRewriter::takeString(std::string_view content)
{
    if (afterString)
    {
        // The place is that after a value or a key already, and stays: only the quote that closed the string before has
        // to go.
        strict.pop_back();
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
    strict += content;
    strict += '"';
    return true;
}

bool JsonRewriter::takeWord(std::string_view word)
{
    if (!beginValue())
        return false;
    strict += word;
    endValue();
    return true;
}

bool JsonRewriter::openBracket(char bracket)
{
    if (!beginValue())
        return false;
    strict += bracket;
    // What is around the new bracket needs no other note: when it closes, a value is complete there.
    openBrackets += bracket;
    place = bracket == '[' ? Place::ArrayStart : Place::ObjectStart;
    return true;
}

bool JsonRewriter::closeBracket(char bracket)
{
    const char opening = bracket == ']' ? '[' : '{';
    // A key without its colon is the one thing that no missing value explains.
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

/// A comma where a value is missing stands for the value null as well.
bool JsonRewriter::takeComma()
{
    switch (place)
    {
    case Place::ArrayStart:
    case Place::ArrayNext:
        // The comma that was taken is written by the next element. So "[1,]" stays at one element, as "[1]" does, while
        // "[,]" has one and "[1,,2]" three.
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
        // "{," has no name that null could belong to, and a key needs its colon first.
        return false;
    }
}

bool JsonRewriter::takeColon()
{
    if (place != Place::Colon)
        return false;
    strict += ':';
    place = Place::MemberValue;
    return true;
}

/// Writes what goes before a value.
/// @return false where no value may stand
bool JsonRewriter::beginValue()
{
    if (place == Place::ArrayNext)
        strict += ',';
    return place == Place::Root || place == Place::ArrayStart || place == Place::ArrayNext ||
           place == Place::MemberValue;
}

void JsonRewriter::beginKey()
{
    if (place == Place::ObjectNext)
        strict += ',';
    place = Place::Colon;
}

void JsonRewriter::endValue()
{
    // The bracket around the value says what a comma will mean, so one place serves arrays and objects.
    place = openBrackets.empty() ? Place::End : Place::AfterValue;
}
