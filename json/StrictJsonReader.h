#pragma once

#include "json/JsonEvents.h"

#include <string>
#include <string_view>

/// Reads JSON as the standard has it and tells its pieces while it goes; a string is told where it lies, without a
/// copy.
///
/// Open brackets are kept in a text of their own, not on the call stack, so any depth will do.
class StrictJsonReader
{
public:
    /// @param strictText  UTF-8; has to last as long as the reader
    /// @param receiver    is told the pieces; of a text that proves bad, those before the mistake
    StrictJsonReader(const std::string& strictText, JsonEvents& receiver)
        : place(strictText.data()), end(place + strictText.size()), events(receiver)
    {
    }

    /// Reads the whole text, once.
    /// @return false when it is not strict JSON, when half of a surrogate pair is escaped, or when the root is neither
    ///         an object nor an array
    bool read();

private:
    bool takeNext();
    bool takeKey();
    bool takeValue();
    void openBracket();
    void closeBracket();
    bool takeText();
    bool takeString(std::string_view& content);
    bool takeEscapedString(const char* begin, std::string_view& content);
    bool takeNumber();
    bool takeLiteral(std::string_view word);
    void skipBlanks();

    const char* place; ///< the next character: behind the last one stands a zero, which no piece goes on with
    const char* end;
    JsonEvents& events;
    std::string missingBrackets; ///< those that close what is open, the innermost last
    bool isFirst = false;        ///< nothing has come since the innermost bracket was opened
    std::string unescaped;       ///< the string that was taken last, if there was an escape in it
};
