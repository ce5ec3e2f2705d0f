#include "json/StrictJsonReader.h"

#include "json/JsonEscape.h"
#include "json/JsonNumber.h"
#include "tests/core/Chance.h"
#include "tests/core/JsonRecord.h"

#include <gtest/gtest.h>
#include <rapidjson/reader.h>

#include <array>
#include <string>
#include <vector>

using namespace std::string_literals;

namespace
{

constexpr const char* bad = "bad";

std::string eventsOf(const std::string& text)
{
    JsonRecord record;
    return StrictJsonReader(text, record).read() ? record.written : bad;
}

/// Writes down what the other reader finds, as `JsonRecord` does.
class OtherRecord : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, OtherRecord>
{
public:
    bool StartObject() { return note("{"); }
    bool EndObject(rapidjson::SizeType) { return note("}"); }
    bool StartArray() { return note("["); }
    bool EndArray(rapidjson::SizeType) { return note("]"); }
    bool Key(const char* name, rapidjson::SizeType length, bool) { return note({name, length}) && note("="); }
    bool String(const char* text, rapidjson::SizeType length, bool)
    {
        return note("'" + std::string(text, length) + "'");
    }
    bool RawNumber(const char* text, rapidjson::SizeType length, bool)
    {
        return note("'" + decimalText({text, length}) + "'");
    }
    bool Bool(bool) { return note("-"); }
    bool Null() { return note("-"); }

    std::string written;

private:
    bool note(const std::string& piece)
    {
        written += piece;
        return true;
    }
};

/// The other reader takes a lone second half of a surrogate pair (RapidJSON 1.1).
bool escapesAreWhole(const std::string& text)
{
    std::size_t length = 1;
    for (std::size_t place = text.find('\\'); place != std::string::npos; place = text.find('\\', place + length))
    {
        length = escapeLength(std::string_view(text).substr(place));
        if (length == 0)
            return false;
    }
    return true;
}

constexpr const char* tooLarge = "too large";

/// What RapidJSON makes of a text whose root is a bracket; it refuses numbers that a floating-point number does not
/// hold.
std::string othersEventsOf(const std::string& text)
{
    const std::size_t root = text.find_first_not_of(" \t\r\n");
    if (root == std::string::npos || (text[root] != '{' && text[root] != '['))
        return bad;
    OtherRecord record;
    rapidjson::Reader reader;
    rapidjson::StringStream stream(text.c_str());
    const auto result =
        reader.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag>(stream, record);
    if (result.Code() == rapidjson::kParseErrorNumberTooBig)
        return tooLarge;
    return !result.IsError() && stream.Tell() == text.size() && escapesAreWhole(text) ? record.written : bad;
}

std::string anyPiece(Chance& chance)
{
    return chance.oneOf<std::string>(
        {"{",     "}",       "[",       "]",       ",",    ":",    "\"",       "\"a\"", "\"\"", "1",    "0",     "-",
         "-0",    "01",      "1.5",     ".",       "1.",   "e",    "2E+3",     "1e-2",  "+",    "true", "false", "null",
         "nul",   "True",    " ",       "\n",      "\r\n", "\t",   "\f",       "\0"s,   "\\",   "\\n",  "\\x",   "\\\"",
         "\\u00", "\\u0041", "\\ud83d", "\\ude00", "\x1F", "\x7F", "\xC3\xBC", "/",     "'"});
}

/// Puts, takes out or replaces something, a few times, so that many texts stay JSON.
std::string mutated(std::string text, Chance& chance)
{
    for (int changes = chance.pick(1, 3); changes > 0; --changes)
    {
        const auto place = static_cast<std::size_t>(chance.pick(0, static_cast<int>(text.size())));
        const auto length = static_cast<std::size_t>(chance.pick(0, 3));
        text.replace(place, length, chance.happens(75) ? anyPiece(chance) : "");
    }
    return text;
}

} // namespace

TEST(StrictJsonReader, PiecesComeInTheOrderOfTheText)
{
    EXPECT_EQ(eventsOf(R"( {"a":[1,"x",true,null,{}],"b":{"c":[]},"a":false} )"), "{a=['1''x'--{}]b={c=[]}a=-}");
}

TEST(StrictJsonReader, NothingIsTolerated)
{
    for (const char* text :
         {"", "1", "\"a\"", "[1,]", "[,1]", "{\"a\":1,}", "{\"a\":}", "{\"a\" 1}", "{1:2}", "[True]", "[1 2]",
          "[\"a\" \"b\"]", "[\"a\nb\"]", "[1]/**/", "[1]]", "[1}", "{\"a\"}", "[01]", "[1.]"})
        EXPECT_EQ(eventsOf(text), bad) << text;
}

TEST(StrictJsonReader, NumbersBeyondAFloatingPointNumberAreTaken)
{
    EXPECT_EQ(eventsOf("[1e999,-1E+400,7]"), "['''''7']");
    EXPECT_EQ(eventsOf("[" + std::string(500, '9') + "]"), "['" + std::string(500, '9') + "']");
}

// Strings are gone through sixteen characters at a time.
TEST(StrictJsonReader, StringEndsAtItsQuoteWhereverThatStands)
{
    for (std::size_t length = 0; length < 40; ++length)
    {
        for (const std::string letter : {"x", "\xFF", "\x7F", "!", "#", "]"})
        {
            std::string content;
            while (content.size() < length)
                content += letter;
            EXPECT_EQ(eventsOf("[\"" + content + "\"]"), "['" + content + "']");
            EXPECT_EQ(eventsOf("[\"" + content + "\\n\\\"x\",1]"), "['" + content + "\n\"x''1']");
            EXPECT_EQ(eventsOf("[\"" + content + "\x1Fxxxxxxx\"]"), bad);
            EXPECT_EQ(eventsOf("[\"" + content), bad);
        }
    }
}

TEST(StrictJsonReader, TakesWhatAnotherReaderTakes)
{
    const std::array<std::string, 5> texts{
        R"({"a":[1,"x",true,null,{}],"b":{"c":[]},"a":false})",
        R"([{"Name": "A.B", "Size": 12, "Groups": -0.5e1}, {"Name": "C", "Size": "4"}])",
        "{\n \"l\": [\n  {\"lable\": \"\\u00fc\\n\\ud83d\\ude00 long enough\", \"structure\": []}\n ]\n}\n",
        "[\"\\\\\", \"\\/\\b\\f\\r\\t\", [[[]]], 0, -12, 1E5, 0.0625]", "{\"\": {\"\": {}}, \"x\": [false, \"\"]}"};
    int taken = 0;
    Chance chance(4711);
    for (int round = 0; round < 40000; ++round)
    {
        const std::string text = mutated(texts[static_cast<std::size_t>(chance.pick(0, 4))], chance);
        const std::string events = eventsOf(text);
        const std::string othersEvents = othersEventsOf(text);
        if (othersEvents == tooLarge)
            continue;
        ASSERT_EQ(events, othersEvents) << text;
        taken += events == bad ? 0 : 1;
    }
    // Both kinds were there.
    EXPECT_GT(taken, 2000);
    EXPECT_LT(taken, 38000);
}
