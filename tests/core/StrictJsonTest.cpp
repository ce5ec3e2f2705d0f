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

TEST(StrictJson, NumbersOfAnyMagnitudeAreCarriedAsStrings)
{
    EXPECT_EQ(rewritten("[1e999]"), R"(["1e999"])");
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
