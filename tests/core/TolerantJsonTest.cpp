#include "json/TolerantJson.h"

#include "tests/core/JsonRecord.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

using namespace std::string_literals;

namespace
{

std::string eventsOf(std::string text)
{
    JsonRecord record;
    return readTolerantJson(std::move(text), record) ? record.written : "bad";
}

bool accepted(std::string text)
{
    JsonRecord record;
    return readTolerantJson(std::move(text), record);
}

/// `opening` and then `closing`, each a million times.
std::string nested(const std::string& opening, const std::string& middle, const std::string& closing)
{
    constexpr int depth = 1000000;
    std::string text;
    text.reserve(depth * (opening.size() + closing.size()) + middle.size());
    for (int i = 0; i < depth; ++i)
        text += opening;
    text += middle;
    for (int i = 0; i < depth; ++i)
        text += closing;
    return text;
}

} // namespace

TEST(TolerantJson, ObjectsAndArraysAreRoots)
{
    EXPECT_TRUE(accepted("{}"));
    EXPECT_TRUE(accepted("[]"));
    for (const char* scalar : {"1", "\"a\"", "true", "null", "\"a\" \"b\"", "NULL"})
        EXPECT_FALSE(accepted(scalar)) << scalar;
}

TEST(TolerantJson, PiecesComeInTheOrderOfTheText)
{
    EXPECT_EQ(eventsOf(R"({"a":[1,"x",true,null,{}],"b":{"c":[]},"a":false})"), "{a=['1''x'--{}]b={c=[]}a=-}");
}

TEST(TolerantJson, NumbersComeAsTheirDecimalText)
{
    for (const char* strictOrNot : {"", ","})
    {
        const auto numbers = [strictOrNot](const std::string& list)
        { return eventsOf("[" + list + strictOrNot + "]"); };
        EXPECT_EQ(numbers("16,-2.50,0,1e2,-0"), "['16''-2.5''0''100''0']");
        EXPECT_EQ(numbers("12345678901234567890123"), "['12345678901234567890123']");
        const std::string digits(500, '9');
        EXPECT_EQ(numbers(digits), "['" + digits + "']");
        EXPECT_EQ(numbers("1e999,7,-1E-999"), "['''7''']");
    }
}

TEST(TolerantJson, StringsThatLookLikeNumbersStayAsTheyAre)
{
    EXPECT_EQ(eventsOf(R"(["1e2","1.50","-0"])"), "['1e2''1.50''-0']");
    EXPECT_EQ(eventsOf(R"(["1e2","1.50","-0",])"), "['1e2''1.50''-0']");
}

TEST(TolerantJson, EscapesAreResolved)
{
    EXPECT_EQ(eventsOf(R"(["\"\\\/\b\f\n\r\t"])"), "['\"\\/\b\f\n\r\t']");
    EXPECT_EQ(eventsOf(R"(["\u00fc\u20AC\ud83d\ude00"])"), "['\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80']");
    EXPECT_EQ(eventsOf(R"(["x\u0000y"])"), "['x\0y']"s);
    EXPECT_EQ(eventsOf(R"({"\u0061":"x"})"), "{a='x'}");
    EXPECT_EQ(eventsOf(R"(["\\udc00"])"), "['\\udc00']");
}

TEST(TolerantJson, LineBreaksCountForNothing)
{
    EXPECT_EQ(eventsOf("\r\n{\n\"a\"\r:\n\n\"x\"\n}\n"), "{a='x'}");
    EXPECT_EQ(eventsOf("[\"one \ntwo\r\n three\"]"), "['one two three']");
    EXPECT_EQ(eventsOf("[1\n2]"), "['12']");
    EXPECT_EQ(eventsOf("[tr\nue]"), "[-]");
}

TEST(TolerantJson, EachToleratedFormIsTaken)
{
    EXPECT_EQ(eventsOf("[1/*,2*/,3] // end"), "['1''3']");
    EXPECT_EQ(eventsOf("[TRUE,False,nULL]"), "[---]");
    EXPECT_EQ(eventsOf(R"([1,,2])"), "['1'-'2']");
    EXPECT_EQ(eventsOf(R"({"a":,"b":})"), "{a=-b=-}");
    EXPECT_EQ(eventsOf(R"({"a" "b":"c"/**/"d"})"), "{ab='cd'}");
    EXPECT_EQ(eventsOf(R"([1,{"a":1,},])"), "['1'{a='1'}]");
}

TEST(TolerantJson, ToleratedFormsMayAllBeMixed)
{
    EXPECT_EQ(eventsOf(R"({"x":NULL,/*c*/"b":[1,,2,],"a" :"p" /*d*/ "q",})"), "{x=-b=['1'-'2']a='pq'}");
    EXPECT_EQ(eventsOf(R"({"" "a":"x" "","y":})"), "{a='x'y=-}");
}

TEST(TolerantJson, OtherMistakesAreBad)
{
    for (const char* text : {R"({"a":1,,"b":2})", "{,}", "['a']", "[1 2]", "[1}", "[1", "1]", "{a:1}", "[01]", "[+1]",
                             "[NaN]", "[1] /* open"})
        EXPECT_FALSE(accepted(text)) << text;
}

TEST(TolerantJson, UnknownEscapesAndHalvesOfPairsAreBad)
{
    for (const char* escape : {"\\x", "\\'", "\\0", "\\u12", "\\u12g4", "\\ud800", "\\ud800x", "\\ud800\\u0041",
                               "\\udc00", "\\uDFFF", "\\ud83d\\ude00\\ude00", "\\u0041\\udc00", "\\\\\\udc00"})
    {
        EXPECT_FALSE(accepted("{\"a\":\""s + escape + "\"}")) << escape;
        EXPECT_FALSE(accepted("{\"a\":\""s + escape + "\",}")) << escape;
    }
}

TEST(TolerantJson, ControlCharactersInsideStringsAreKept)
{
    EXPECT_EQ(eventsOf("{\"a\tb\":\"c\x01\x1F\x7F\"}"), "{a\tb='c\x01\x1F\x7F'}");
    EXPECT_EQ(eventsOf("[\"a\0b\"]"s), "['a\0b']"s);
    EXPECT_EQ(eventsOf("[\"a\tb\" /**/ \"\\t\fd\",]"), "['a\tb\t\fd']");
    EXPECT_FALSE(accepted("[\"a\\\tb\"]"));
}

TEST(TolerantJson, EscapeSplitOverNeighbouringStringsIsBad)
{
    EXPECT_FALSE(accepted(R"(["\u00" "fc"])"));
    EXPECT_FALSE(accepted(R"(["\ud83d" "\ude00"])"));
}

TEST(TolerantJson, OtherBlanksThanSpaceAndTabAreBad)
{
    EXPECT_TRUE(accepted("\t[ 1 ,\r\n2\t]"));
    for (const char* text : {"\f[1]", "[\v1]", "[1\f]", "[1]\f", "[1,\x1F]", "[1,\xC2\xA0]"})
        EXPECT_FALSE(accepted(text)) << text;
}

TEST(TolerantJson, LineCommentTakesInAllFurtherLines)
{
    EXPECT_FALSE(accepted("{ // comment\n}"));
    EXPECT_TRUE(accepted("{ /* comment\n over lines */ }"));
    EXPECT_TRUE(accepted("{}\n// the end\n\n"));
}

TEST(TolerantJson, TextBehindTheRootIsBad)
{
    EXPECT_FALSE(accepted("{} {}"));
    EXPECT_FALSE(accepted("{}x"));
    EXPECT_FALSE(accepted("{}\0"s));
    EXPECT_FALSE(accepted("{}\0{}"s));
    EXPECT_FALSE(accepted("{},"));
}

TEST(TolerantJson, NothingAndZerosAreBad)
{
    EXPECT_FALSE(accepted(""));
    EXPECT_FALSE(accepted("\n\n"));
    EXPECT_FALSE(accepted(std::string(1000, '\0')));
    EXPECT_FALSE(accepted("[\0]"s));
}

TEST(TolerantJson, TextCutOffAnywhereIsBad)
{
    const std::string text = R"({"a" "b":[1.5e3,,"x\u00fc",{"c":},[],],/*d*/"e":True})";
    ASSERT_TRUE(accepted(text));
    for (std::size_t length = 0; length < text.size(); ++length)
        EXPECT_FALSE(accepted(text.substr(0, length))) << length;
}

TEST(TolerantJson, NestingMayBeAMillionDeep)
{
    EXPECT_TRUE(accepted(nested("[", "", "]")));
    EXPECT_TRUE(accepted(nested("{\"a\":", "1", "}")));
    EXPECT_TRUE(accepted(nested("[", ",", ",]")));
    EXPECT_TRUE(accepted(nested("{\"a\":", "", "}")));
    EXPECT_FALSE(accepted(nested("[", "", "")));
    EXPECT_FALSE(accepted(nested("[", "", "}")));
    EXPECT_FALSE(accepted(nested("{\"a\":", "", "")));
    EXPECT_FALSE(accepted(nested("", "", "]")));
}

TEST(TolerantJson, LongStringsAreWhole)
{
    std::string text;
    text.resize(10000000, 'x');
    EXPECT_TRUE(eventsOf("[\"" + text + "\"]") == "['" + text + "']");
    EXPECT_TRUE(eventsOf("[\"" + text + "\",]") == "['" + text + "']");
}
