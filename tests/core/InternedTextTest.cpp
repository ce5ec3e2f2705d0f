#include "text/InternedText.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <unordered_set>
#include <vector>

using namespace std::string_literals;

static_assert(sizeof(InternedText) == sizeof(void*));
static_assert(std::is_trivially_copyable_v<InternedText>);

TEST(InternedText, EqualTextsAreOneObject)
{
    const std::string first = "Tank1Level";
    const std::string second = "Tank1Level";
    EXPECT_EQ(InternedText(first), InternedText(second));
    EXPECT_EQ(InternedText(first).view().data(), InternedText(second).view().data());
}

TEST(InternedText, DifferentTextsDiffer)
{
    EXPECT_NE(InternedText("Pump"), InternedText("pump"));
    EXPECT_NE(InternedText("Pump"), InternedText("Pump "));
    EXPECT_NE(InternedText("Pump"), InternedText("Pum"));
    EXPECT_NE(InternedText("Pump"), InternedText());
}

TEST(InternedText, EmptyTextIsTheZeroHandle)
{
    const InternedText empty;
    EXPECT_TRUE(empty.empty());
    EXPECT_EQ(empty.view(), "");
    EXPECT_EQ(InternedText(""), empty);
    const void* zero = nullptr;
    EXPECT_EQ(std::memcmp(&empty, &zero, sizeof empty), 0);
}

TEST(InternedText, KeepsEveryByte)
{
    const std::string bytes = "a\0b\xFF\n"s;
    const InternedText text(bytes);
    EXPECT_EQ(text.view(), bytes);
    EXPECT_FALSE(text.empty());
    EXPECT_NE(text, InternedText("a"));
    EXPECT_NE(InternedText("\0"s), InternedText());
}

TEST(InternedText, TakesPartOfALongerText)
{
    const std::string_view line = "HOLDING,00100";
    EXPECT_EQ(InternedText(line.substr(0, 7)), InternedText("HOLDING"));
}

TEST(InternedText, OutlivesTheBytesItWasMadeFrom)
{
    auto bytes = std::make_unique<std::string>(100, 'x');
    const InternedText text(*bytes);
    bytes->assign(100, 'y');
    EXPECT_EQ(text.view(), std::string(100, 'x'));
}

TEST(InternedText, ViewsStayWhereTheyAreWhileManyMoreTextsCome)
{
    std::vector<InternedText> texts;
    std::vector<std::string_view> views;
    for (int i = 0; i < 200'000; ++i)
    {
        texts.emplace_back("text number " + std::to_string(i));
        views.push_back(texts.back().view());
    }
    for (int i = 0; i < 200'000; ++i)
    {
        const auto index = static_cast<std::size_t>(i);
        const std::string expected = "text number " + std::to_string(i);
        ASSERT_EQ(views[index], expected);
        ASSERT_EQ(texts[index], InternedText(expected));
        ASSERT_EQ(texts[index].view().data(), views[index].data());
    }
}

TEST(InternedText, LongTextsAreWholeAndLeaveTheirNeighboursAlone)
{
    const InternedText before("before the long one");
    const InternedText longText(std::string(3'000'000, 'L') + "end");
    const InternedText after("behind the long one");
    EXPECT_EQ(longText.view().size(), 3'000'003U);
    EXPECT_EQ(longText, InternedText(std::string(3'000'000, 'L') + "end"));
    EXPECT_NE(longText, InternedText(std::string(3'000'000, 'L') + "END"));
    EXPECT_EQ(before.view(), "before the long one");
    EXPECT_EQ(after.view(), "behind the long one");
}

TEST(InternedText, EqualTextsHashEqually)
{
    EXPECT_EQ(std::hash<InternedText>{}(InternedText("Pump")), std::hash<InternedText>{}(InternedText("Pump")));
    std::unordered_set<InternedText> names{InternedText("A"), InternedText("B"), InternedText("A"), InternedText()};
    EXPECT_EQ(names.size(), 3U);
    EXPECT_TRUE(names.contains(InternedText("B")));
    EXPECT_FALSE(names.contains(InternedText("C")));
}

TEST(InternedText, LookingATextUpDoesNotKeepIt)
{
    EXPECT_EQ(InternedText::known("nobody has made this text"), std::nullopt);
    EXPECT_EQ(InternedText::known("nobody has made this text"), std::nullopt);
    const InternedText made("nobody has made this text");
    EXPECT_EQ(InternedText::known("nobody has made this text"), made);
    EXPECT_EQ(InternedText::known(""), InternedText());
}

TEST(InternedText, ManyTextsAtOnceAreTheSameAsOneByOne)
{
    std::vector<std::string> contents{"known before", "", "twice", "twice", std::string("a\0b", 3)};
    const InternedText known("known before");
    for (int i = 0; i < 50'000; ++i)
        contents.push_back("one of many " + std::to_string(i % 40'000));
    const std::vector<std::string_view> views(contents.begin(), contents.end());
    std::vector<InternedText> texts(contents.size());
    InternedText::internAll(views, texts);

    EXPECT_EQ(texts[0], known);
    EXPECT_TRUE(texts[1].empty());
    EXPECT_EQ(texts[2], texts[3]);
    for (std::size_t i = 0; i < contents.size(); ++i)
    {
        ASSERT_EQ(texts[i].view(), contents[i]);
        ASSERT_EQ(texts[i], InternedText(contents[i]));
    }
    InternedText::internAll({}, {});
}
