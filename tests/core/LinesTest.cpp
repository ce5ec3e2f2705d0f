#include "text/Lines.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace
{

using Lines = std::vector<std::string>;

Lines linesOf(std::string_view text)
{
    Lines lines;
    forEachLine(text, [&lines](std::string_view line) { lines.emplace_back(line); });
    return lines;
}

} // namespace

TEST(Lines, EndWithLineFeedCarriageReturnOrBoth)
{
    EXPECT_EQ(linesOf("a\nb\n"), (Lines{"a", "b"}));
    EXPECT_EQ(linesOf("a\rb\r"), (Lines{"a", "b"}));
    EXPECT_EQ(linesOf("a\r\nb\r\n"), (Lines{"a", "b"}));
    EXPECT_EQ(linesOf("a\nb\rc\r\nd"), (Lines{"a", "b", "c", "d"}));
}

TEST(Lines, LineFeedBeforeCarriageReturnEndsTwoLines)
{
    EXPECT_EQ(linesOf("a\n\rb"), (Lines{"a", "", "b"}));
    EXPECT_EQ(linesOf("a\r\r\nb"), (Lines{"a", "", "b"}));
}

TEST(Lines, LastLineNeedsNoEnd)
{
    EXPECT_EQ(linesOf("a"), (Lines{"a"}));
    EXPECT_EQ(linesOf("a\nb"), (Lines{"a", "b"}));
}

TEST(Lines, EmptyTextHasNoneAndEmptyLinesCount)
{
    EXPECT_EQ(linesOf(""), Lines{});
    EXPECT_EQ(linesOf("\n"), Lines{""});
    EXPECT_EQ(linesOf("\n\na\n\n"), (Lines{"", "", "a", ""}));
}

TEST(Lines, NothingElseEndsALine)
{
    EXPECT_EQ(linesOf("a\vb\fc\xC2\x85"
                      "d\xE2\x80\xA8"
                      "e")
                  .size(),
              1U);
    EXPECT_EQ(linesOf(std::string_view("a\0b", 3)), Lines{std::string("a\0b", 3)});
}

TEST(Lines, ManyLinesOfOneKindOfEndAreSplitInOnePass)
{
    std::string text;
    for (int i = 0; i < 1000000; ++i)
        text += "\r";
    EXPECT_EQ(linesOf(text).size(), 1000000U);
}

TEST(Lines, LineOfTenMegabytesIsOneLine)
{
    std::string line;
    line.resize(10000000, 'x');
    EXPECT_EQ(linesOf(line + "\r\n" + line), (Lines{line, line}));
}

TEST(JoinLines, DropsEveryLineEndAndNothingElse)
{
    EXPECT_EQ(joinLines(""), "");
    EXPECT_EQ(joinLines("one line"), "one line");
    EXPECT_EQ(joinLines("a\r\nb\rc\nd"), "abcd");
    EXPECT_EQ(joinLines("\n\r\r\n\n"), "");
    EXPECT_EQ(joinLines(" a \n\tb\n"), " a \tb");
}

TEST(JoinLines, TextOfOneLineIsNotCopied)
{
    std::string text(1000, 'a');
    const char* const place = text.data();
    const std::string joined = joinLines(std::move(text));
    EXPECT_TRUE(joined.data() == place);
}
