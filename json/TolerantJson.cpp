#include "json/TolerantJson.h"

#include "json/StrictJson.h"
#include "text/Lines.h"

#include <rapidjson/reader.h>

#include <cstddef>
#include <limits>
#include <utility>

namespace
{

/// Numbers stay texts: whoever wants a text gets it as written, whoever wants a number gets exact bits.
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

    bool RawNumber(const char* text, rapidjson::SizeType length, bool)
    {
        events.text({text, length});
        return true;
    }

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

/// True when a "\u" escape of "d" and one of `seconds` begins the text.
bool beginsWithEscapeOf(std::string_view text, std::string_view seconds)
{
    return text.size() >= 6 && text.starts_with("\\u") && (text[2] == 'd' || text[2] == 'D') &&
           seconds.find(text[3]) != std::string_view::npos;
}

/// True when an escaped low surrogate does not follow an escaped high one. The parser notices only the opposite
/// and would make bytes of it that are no UTF-8.
bool holdsLoneLowSurrogate(std::string_view text)
{
    constexpr std::string_view high = "89abAB";
    constexpr std::string_view low = "cdefCDEF";
    constexpr std::size_t escapeLength = 6;
    std::size_t place = text.find('\\');
    while (place != std::string_view::npos)
    {
        const std::string_view ahead = text.substr(place);
        if (beginsWithEscapeOf(ahead, low))
            return true;
        std::size_t length = 2;
        if (beginsWithEscapeOf(ahead, high) && beginsWithEscapeOf(ahead.substr(escapeLength), low))
            length = 2 * escapeLength;
        place = text.find('\\', place + length);
    }
    return false;
}

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
    events.beginDocument();
    Forwarder forwarder(events);
    rapidjson::Reader reader;
    rapidjson::StringStream stream(text.c_str());
    const bool parsed = !reader.Parse<parseFlags>(stream, forwarder).IsError();
    // A zero byte is the end to the parser, but not to us.
    return parsed && stream.Tell() == text.size() && !holdsLoneLowSurrogate(text);
}

} // namespace

bool readTolerantJson(std::string text, JsonEvents& events)
{
    // In strict JSON line breaks stand between tokens only, so it means the same before its lines are joined.
    if (readStrictJson(text, events))
        return true;
    const auto strict = toStrictJson(joinLines(std::move(text)));
    return strict && readStrictJson(*strict, events);
}
