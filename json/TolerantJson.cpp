#include "json/TolerantJson.h"

#include "json/JsonEscape.h"
#include "json/JsonNumber.h"
#include "json/StrictJson.h"
#include "text/Lines.h"

#include <rapidjson/reader.h>

#include <cstddef>
#include <limits>
#include <utility>

// Reading goes in up to two rounds:
//
//   1. The text as it is goes to the parser. Most files are strict JSON and need no second round.
//   2. A text that the parser refuses has its lines joined and is rewritten; the result goes to the parser again.
//
// The parser's own tolerance for comments and trailing commas stays off. It knows neither missing values nor strings in
// pieces, and two notions of what is tolerated would be one too many.

namespace
{

/// Iterative, because a file may nest a million levels deep: the parser keeps them on the heap then, not on the stack.
/// Numbers stay texts: whoever wants a number gets the exact bits of a long one too.
constexpr unsigned parseFlags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;

/// Hands on what the parser finds; it goes on for as long as the answer is true.
class Forwarder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Forwarder>
{
public:
    explicit Forwarder(JsonEvents& receiver) : events(receiver) {}

    bool StartObject()
    {
        events.beginObject();
        return true;
    }

    bool EndObject(rapidjson::SizeType)
    {
        events.endObject();
        return true;
    }

    bool StartArray()
    {
        events.beginArray();
        return true;
    }

    bool EndArray(rapidjson::SizeType)
    {
        events.endArray();
        return true;
    }

    bool Key(const char* name, rapidjson::SizeType length, bool)
    {
        events.key({name, length});
        return true;
    }

    bool String(const char* text, rapidjson::SizeType length, bool)
    {
        events.text({text, length});
        return true;
    }

    // Numbers arrive as they are written: 1e2 has still to become 100.
    bool RawNumber(const char* text, rapidjson::SizeType length, bool)
    {
        events.text(decimalText({text, length}));
        return true;
    }

    // No member of a tag database is meant to be true, false or null, so which of them it is counts for nothing.
    bool Bool(bool)
    {
        events.literal();
        return true;
    }

    bool Null()
    {
        events.literal();
        return true;
    }

private:
    JsonEvents& events;
};

/// True when each escape is whole. The parser lets a low surrogate pass that follows no high one, and would make
/// bytes of it that are not UTF-8 (RapidJSON 1.1).
/// @param text  strict JSON, where a backslash stands nowhere but in strings
bool escapesAreWhole(std::string_view text)
{
    std::size_t place = text.find('\\');
    while (place != std::string_view::npos)
    {
        const std::size_t length = escapeLength(text.substr(place));
        if (length == 0)
            return false;
        place = text.find('\\', place + length);
    }
    return true;
}

/// The root has to be an object or an array. The parser would also take a text, a number or a literal.
bool beginsWithBracket(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && (text[first] == '{' || text[first] == '[');
}

bool readStrictJson(const std::string& text, JsonEvents& events)
{
    // The parser counts with 32 bits.
    if (!beginsWithBracket(text) || text.size() > std::numeric_limits<rapidjson::SizeType>::max())
        return false;
    // The parser hands its pieces on at once, so a reader may have built half a database before the text proves bad.
    events.beginDocument();
    Forwarder forwarder(events);
    rapidjson::Reader reader;
    rapidjson::StringStream stream(text.c_str());
    const bool parsed = !reader.Parse<parseFlags>(stream, forwarder).IsError();
    // A zero byte is the end to the parser, but not to us.
    return parsed && stream.Tell() == text.size() && escapesAreWhole(text);
}

} // namespace

bool readTolerantJson(std::string text, JsonEvents& events)
{
    // In strict JSON line breaks stand between tokens only, so it means the same before its lines are joined. What the
    // first round handed on of a text that it then refused is forgotten when the second one begins the document anew.
    if (readStrictJson(text, events))
        return true;
    const auto strict = toStrictJson(joinLines(std::move(text)));
    return strict && readStrictJson(*strict, events);
}
