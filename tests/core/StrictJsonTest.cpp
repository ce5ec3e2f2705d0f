#include "json/StrictJson.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace
{

std::string rewritten(std::string_view text)
{
    return toStrictJson(text).value_or("refused");
}

} // namespace

TEST(StrictJson, StrictTextKeepsItsMeaning)
{
    EXPECT_EQ(rewritten("{}"), "{}");
    EXPECT_EQ(rewritten(" [ ] "), "[]");
    EXPECT_EQ(rewritten(R"({"a" : [1, -2.5, "x", true, {"b": null}], "c": {}})"),
              R"({"a":[1,-2.5,"x",true,{"b":null}],"c":{}})");
}

TEST(StrictJson, StringsStayAsTheyAreWritten)
{
    EXPECT_EQ(rewritten(R"(["a\"b\\", "/* no comment */ // none", "[,{:"])"),
              R"(["a\"b\\","/* no comment */ // none","[,{:"])");
}

TEST(StrictJson, ControlCharactersInsideStringsAreEscaped)
{
    EXPECT_EQ(rewritten("[\"a\tb\x1F\x10\x01\"]"), R"(["a\u0009b\u001F\u0010\u0001"])");
    EXPECT_EQ(rewritten(std::string_view("{\"\0\":1}", 7)), R"({"\u0000":1})");
    EXPECT_EQ(rewritten("[\"\x7F\"]"), "[\"\x7F\"]");
    EXPECT_EQ(rewritten("[\"\\\t\"]"), "refused");
}

TEST(StrictJson, EscapesHaveToBeWholeInEachString)
{
    EXPECT_EQ(rewritten(R"(["\u00fc" "\ud83d\ude00"])"), R"(["\u00fc\ud83d\ude00"])");
    EXPECT_EQ(rewritten(R"(["\u00" "fc"])"), "refused");
    EXPECT_EQ(rewritten(R"(["\u" "00fc"])"), "refused");
    EXPECT_EQ(rewritten(R"(["\ud83d" "\ude00"])"), "refused");
    EXPECT_EQ(rewritten(R"({"\u00" "fc":1})"), "refused");
    EXPECT_EQ(rewritten(R"(["\x"])"), "refused");
}

TEST(StrictJson, BlanksAreSpaceAndTab)
{
    EXPECT_EQ(rewritten("\t[ 1\t,\t2 ]\t"), "[1,2]");
    for (const char* text : {"\f[1]", "[\v1]", "[1\f]", "[1]\f", "[\b]", "[\x01]", "[1\f,2]", "[\"a\"\f\"b\"]"})
        EXPECT_EQ(rewritten(text), "refused") << text;
}

TEST(StrictJson, CommentsCountAsBlanks)
{
    EXPECT_EQ(rewritten("/* a */ [ /**/ 1 /* , 2 */ ] // end"), "[1]");
    EXPECT_EQ(rewritten(R"({"a"/* " */:/* } */1})"), R"({"a":1})");
    EXPECT_EQ(rewritten("[]//"), "[]");
    EXPECT_EQ(rewritten("[/***/]"), "[]");
    EXPECT_EQ(rewritten("[1/**/2]"), "refused");
    EXPECT_EQ(rewritten("[tr/**/ue]"), "refused");
}

TEST(StrictJson, CommentThatIsNotClosedIsRefused)
{
    EXPECT_EQ(rewritten("[1] /*"), "refused");
    EXPECT_EQ(rewritten("[1] /*/"), "refused");
    EXPECT_EQ(rewritten("[1] /* *"), "refused");
    EXPECT_EQ(rewritten("[1] /"), "refused");
    EXPECT_EQ(rewritten("[1 // ]"), "refused");
    EXPECT_EQ(rewritten("[1 / 2]"), "refused");
    EXPECT_EQ(rewritten("[1 # 2\n]"), "refused");
}

TEST(StrictJson, LiteralsMayBeInAnyLetterCase)
{
    EXPECT_EQ(rewritten("[True,FALSE,nUlL,true]"), "[true,false,null,true]");
    EXPECT_EQ(rewritten("[nulls]"), "refused");
    EXPECT_EQ(rewritten("[tru]"), "refused");
    EXPECT_EQ(rewritten("[yes]"), "refused");
}

TEST(StrictJson, MissingValueIsNull)
{
    EXPECT_EQ(rewritten("[1,,2]"), "[1,null,2]");
    EXPECT_EQ(rewritten("[,1]"), "[null,1]");
    EXPECT_EQ(rewritten("[,,,1]"), "[null,null,null,1]");
    EXPECT_EQ(rewritten(R"({"a":})"), R"({"a":null})");
    EXPECT_EQ(rewritten(R"({"a":,"b":1})"), R"({"a":null,"b":1})");
}

TEST(StrictJson, OneCommaBeforeAClosingBracketIsDropped)
{
    EXPECT_EQ(rewritten("[1,]"), "[1]");
    EXPECT_EQ(rewritten("[[],]"), "[[]]");
    EXPECT_EQ(rewritten(R"({"a":1,})"), R"({"a":1})");
    EXPECT_EQ(rewritten(R"({"a":,})"), R"({"a":null})");
    EXPECT_EQ(rewritten("[1,,]"), "[1,null]");
    EXPECT_EQ(rewritten("[,]"), "[null]");
}

TEST(StrictJson, MissingMemberIsRefused)
{
    EXPECT_EQ(rewritten(R"({"a":1,,"b":2})"), "refused");
    EXPECT_EQ(rewritten(R"({"a":1,,})"), "refused");
    EXPECT_EQ(rewritten("{,}"), "refused");
    EXPECT_EQ(rewritten(R"({,"a":1})"), "refused");
}

TEST(StrictJson, MemberWithoutKeyOrColonIsRefused)
{
    EXPECT_EQ(rewritten(R"({"a"})"), "refused");
    EXPECT_EQ(rewritten(R"({"a","b":1})"), "refused");
    EXPECT_EQ(rewritten(R"({"a" 1})"), "refused");
    EXPECT_EQ(rewritten(R"({:1})"), "refused");
    EXPECT_EQ(rewritten(R"({1:1})"), "refused");
    EXPECT_EQ(rewritten(R"({null:1})"), "refused");
    EXPECT_EQ(rewritten(R"({a:1})"), "refused");
    EXPECT_EQ(rewritten(R"({[]:1})"), "refused");
    EXPECT_EQ(rewritten(R"({"a"::1})"), "refused");
    EXPECT_EQ(rewritten(R"(["a":1])"), "refused");
}

TEST(StrictJson, NeighbouringStringsAreOneString)
{
    EXPECT_EQ(rewritten(R"(["a" "b"])"), R"(["ab"])");
    EXPECT_EQ(rewritten(R"(["a""b" /* and */ "c\"" "", "d"])"), R"(["abc\"","d"])");
    EXPECT_EQ(rewritten(R"({"a" "b":"c" "d"})"), R"({"ab":"cd"})");
    EXPECT_EQ(rewritten(R"({"a":1 "b":2})"), "refused");
    EXPECT_EQ(rewritten(R"([1 "a"])"), "refused");
    EXPECT_EQ(rewritten(R"(["a" 1])"), "refused");
    EXPECT_EQ(rewritten(R"([[] "a"])"), "refused");
    EXPECT_EQ(rewritten(R"([] "a")"), "refused");
}

TEST(StrictJson, ValuesWithoutCommaBetweenThemAreRefused)
{
    EXPECT_EQ(rewritten("[1 2]"), "refused");
    EXPECT_EQ(rewritten("[[] []]"), "refused");
    EXPECT_EQ(rewritten("[true[]]"), "refused");
    EXPECT_EQ(rewritten(R"({"a":{}{}})"), "refused");
}

TEST(StrictJson, MissingOrWrongBracketsAreRefused)
{
    for (const char* text :
         {"[", "{", "]", "}", "[}", "{]", "[[]", "[]]", "{\"a\":[}", "[{]}", "{\"a\":1", "{\"a\":", "{\"a\""})
        EXPECT_EQ(rewritten(text), "refused") << text;
}

TEST(StrictJson, StringThatIsNotClosedIsRefused)
{
    for (const char* text : {"[\"", "[\"a", "[\"a\\\"]", "[\"a\\", "['a']", "[\"a']"})
        EXPECT_EQ(rewritten(text), "refused") << text;
}

TEST(StrictJson, NothingAndMoreThanOneRootAreRefused)
{
    for (const char* text : {"", "  ", "// []", "/* [] */", "[] []", "[],", "{} x", "[]:", ",[]"})
        EXPECT_EQ(rewritten(text), "refused") << text;
}

TEST(StrictJson, WordsThatAreNeitherNumbersNorLiteralsAreRefused)
{
    for (const char* text :
         {"[01]", "[+1]", "[.5]", "[5.]", "[1e]", "[0x10]", "[NaN]", "[-]", "[\xC3\xBC]", "[1\xC2\xA0]"})
        EXPECT_EQ(rewritten(text), "refused") << text;
}

TEST(StrictJson, NumbersOfAnyMagnitudeAreCarriedAsStringsOfTheirDecimalText)
{
    EXPECT_EQ(rewritten("[1e2]"), R"(["100"])");
    EXPECT_EQ(rewritten("[1e999]"), R"([""])");
    const std::string digits(1000, '9');
    EXPECT_EQ(rewritten("[" + digits + "]"), "[\"" + digits + "\"]");
    EXPECT_EQ(rewritten("[1e999 \"a\"]"), "refused");
}

TEST(StrictJson, ManyNeighboursCommentsAndBracketsTakeOnePass)
{
    std::string strings = "[";
    std::string comments = "[";
    for (int i = 0; i < 1000000; ++i)
    {
        strings += "\"a\" ";
        comments += "/*/**/";
    }
    std::string expected = "[\"";
    expected.resize(1000002, 'a');
    EXPECT_TRUE(rewritten(strings + "]") == expected + "\"]");
    EXPECT_EQ(rewritten(comments + "]"), "[]");

    std::string deep;
    deep.resize(1000000, '[');
    deep.resize(2000000, ']');
    EXPECT_TRUE(rewritten(deep) == deep);
    deep.pop_back();
    EXPECT_EQ(rewritten(deep), "refused");
}
