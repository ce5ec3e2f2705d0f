#include "source/TolerantJson.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>

using namespace std::string_literals;

namespace
{

bool accepted(std::string text)
{
    return TolerantJson::parse(std::move(text)).has_value();
}

/// The text of member "a" of the root.
std::string textOfA(std::string json)
{
    const auto document = TolerantJson::parse(std::move(json));
    return document ? std::string(document->root().member("a").text()) : "bad";
}

/// The number of member "a" of the root.
std::uint32_t bitsOfA(std::string json)
{
    const auto document = TolerantJson::parse(std::move(json));
    EXPECT_TRUE(document.has_value());
    return document ? document->root().member("a").bits() : 0;
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

TEST(TolerantJson, ElementsAreCountedAndReached)
{
    const auto document = TolerantJson::parse(R"(["x",,7,])");
    ASSERT_TRUE(document.has_value());
    const JsonValue root = document->root();
    ASSERT_EQ(root.size(), 3U);
    EXPECT_EQ(root[0].text(), "x");
    EXPECT_TRUE(root[1].present());
    EXPECT_EQ(root[1].text(), "");
    EXPECT_EQ(root[2].bits(), 7U);
}

TEST(TolerantJson, LastMemberOfANameCounts)
{
    EXPECT_EQ(textOfA(R"({"a":"1","b":"2","a":"3"})"), "3");
    EXPECT_EQ(textOfA(R"({"a":"1","a":null})"), "");
    EXPECT_EQ(textOfA(R"({"A":"1"})"), "");
}

TEST(TolerantJson, SeveralMembersAreFoundInAnyOrder)
{
    const auto document = TolerantJson::parse(R"({"c":3,"x":0,"a":1,"b":2,"a":4})");
    ASSERT_TRUE(document.has_value());
    constexpr std::array<std::string_view, 4> names{"a", "b", "c", "d"};
    std::array<JsonValue, 4> values;
    document->root().members(names, values);
    EXPECT_EQ(values[0].bits(), 4U);
    EXPECT_EQ(values[1].bits(), 2U);
    EXPECT_EQ(values[2].bits(), 3U);
    EXPECT_FALSE(values[3].present());

    values[0].members(names, values);
    EXPECT_FALSE(values[1].present());
}

TEST(TolerantJson, AbsentNullAndWrongKindsReadAsEmptyAndZero)
{
    for (const char* value : {"null", "true", "false", "[1]", "{\"a\":1}"})
    {
        const std::string json = R"({"a":)"s + value + "}";
        EXPECT_EQ(textOfA(json), "") << value;
        EXPECT_EQ(bitsOfA(json), 0U) << value;
    }
    EXPECT_EQ(textOfA("{}"), "");
    EXPECT_EQ(bitsOfA("{}"), 0U);
    EXPECT_EQ(textOfA(R"(["a"])"), "");

    const JsonValue absent;
    EXPECT_FALSE(absent.present());
    EXPECT_EQ(absent.size(), 0U);
    EXPECT_EQ(absent.text(), "");
    EXPECT_FALSE(absent.member("a").present());
}

TEST(TolerantJson, NumbersHaveTheirDecimalText)
{
    EXPECT_EQ(textOfA(R"({"a":16})"), "16");
    EXPECT_EQ(textOfA(R"({"a":-2.50})"), "-2.50");
    EXPECT_EQ(textOfA(R"({"a":12345678901234567890123})"), "12345678901234567890123");
    EXPECT_EQ(textOfA(R"({"a":1e999})"), "1e999");
}

TEST(TolerantJson, NumericTextsAreNumbers)
{
    EXPECT_EQ(bitsOfA(R"({"a":"300"})"), 300U);
    EXPECT_EQ(bitsOfA(R"({"a":" -1 "})"), 0xFFFFFFFFU);
    EXPECT_EQ(bitsOfA(R"({"a":"2.9"})"), 2U);
    EXPECT_EQ(bitsOfA(R"({"a":"x"})"), 0U);
}

TEST(TolerantJson, NumbersBeyond32BitsKeepTheirLowBits)
{
    EXPECT_EQ(bitsOfA(R"({"a":4294967295})"), 0xFFFFFFFFU);
    EXPECT_EQ(bitsOfA(R"({"a":4294967297})"), 1U);
    EXPECT_EQ(bitsOfA(R"({"a":-2147483648})"), 0x80000000U);
    EXPECT_EQ(bitsOfA(R"({"a":1e400})"), 0U);
    EXPECT_EQ(bitsOfA("{\"a\":" + std::string(500, '9') + "}"), bitsOfA("{\"a\":\"" + std::string(500, '9') + "\"}"));
}

TEST(TolerantJson, EscapesAreResolved)
{
    EXPECT_EQ(textOfA(R"({"a":"\"\\\/\b\f\n\r\t"})"), "\"\\/\b\f\n\r\t");
    EXPECT_EQ(textOfA(R"({"a":"\u00fc\u20AC\ud83d\ude00"})"), "\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(textOfA(R"({"a":"x\u0000y"})"), "x\0y"s);
    EXPECT_EQ(textOfA(R"({"\u0061":"x"})"), "x");
    EXPECT_EQ(textOfA(R"({"a":"\\udc00"})"), "\\udc00");
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

TEST(TolerantJson, ControlCharactersInsideStringsAreBad)
{
    EXPECT_FALSE(accepted("[\"a\tb\"]"));
    EXPECT_FALSE(accepted("[\"a\0b\"]"s));
    EXPECT_TRUE(accepted("[\"a\x7F\"]"));
}

TEST(TolerantJson, LineBreaksCountForNothing)
{
    EXPECT_EQ(textOfA("\r\n{\n\"a\"\r:\n\n\"x\"\n}\n"), "x");
    EXPECT_EQ(textOfA("{\"a\":\"one \ntwo\r\n three\"}"), "one two three");
    EXPECT_EQ(textOfA("{\"a\":1\n2}"), "12");
    EXPECT_EQ(textOfA("{\"a\":tr\nue,\"a\":\"x\"}"), "x");
}

TEST(TolerantJson, LineCommentTakesInAllFurtherLines)
{
    EXPECT_FALSE(accepted("{ // comment\n}"));
    EXPECT_TRUE(accepted("{ /* comment\n over lines */ }"));
    EXPECT_TRUE(accepted("{}\n// the end\n\n"));
}

TEST(TolerantJson, ToleratedFormsMayAllBeMixed)
{
    EXPECT_EQ(textOfA(R"({"x":NULL,/*c*/"b":[1,,2,],"a" :"p" /*d*/ "q",})"), "pq");
    EXPECT_EQ(textOfA(R"({"" "a":"x" "","y":})"), "x");
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
    EXPECT_TRUE(textOfA("{\"a\":\"" + text + "\"}") == text);
    EXPECT_TRUE(textOfA("{\"a\":\"" + text + "\",}") == text);
}
