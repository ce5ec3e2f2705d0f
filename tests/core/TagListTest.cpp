#include "tests/core/DatabaseFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace std::string_literals;

TEST(TagList, DatabaseThatIsNoArrayHasNoTags)
{
    for (const char* database : {"null", "{}", "5", "[]", "\"x\""})
    {
        const Load noTags = load(R"({"structure":[{"lable":"x"}],"database":)"s + database + "}");
        EXPECT_EQ(noTags.result, LoadResult::Loaded) << database;
        EXPECT_EQ(noTags.database.tags.count(), 0) << database;
    }
}

TEST(TagList, OnlyExactlyTheReservedGroupIsLeftOut)
{
    const Load tags =
        loadTags(R"({"Name":"A","Groups":2097152},{"Name":"B","Groups":2097153},{"Name":"C","Groups":"2097152"},)"
                 R"({"Name":"D","Groups":2097152.5},{"Name":"E","Groups":4297064448},{"Name":"F","Groups":-2097152})");
    ASSERT_EQ(tags.database.tags.count(), 2);
    EXPECT_EQ(tags.database.tags[0].name.view(), "B");
    EXPECT_EQ(tags.database.tags[1].name.view(), "F");
}

TEST(TagList, UnknownTypeIsLeftAsItWas)
{
    const Load tags =
        loadTags(R"({"Type":"Numeric"},{"Type":"Float"},{"Type":"numeric"},{"Type":1},{},{"Type":"String"})");
    const TagTable& table = tags.database.tags;
    ASSERT_EQ(table.count(), 6);
    EXPECT_EQ(table[0].type, TagType::Numeric);
    for (int i = 1; i < 5; ++i)
        EXPECT_EQ(table[i].type, TagType::Integer) << i;
    EXPECT_EQ(table[5].type, TagType::String);
}

TEST(TagList, SizeKeepsItsLowEightBits)
{
    const Load tags = loadTags(
        R"({"Size":300},{"Size":255},{"Size":256},{"Size":-1},{"Size":"12"},{"Size":7.9},{"Size":4294967299})");
    const TagTable& table = tags.database.tags;
    const std::vector<int> expected{44, 255, 0, 255, 12, 7, 3};
    ASSERT_EQ(table.count(), 7);
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(table[i].size, expected[static_cast<std::size_t>(i)]) << i;
}

TEST(TagList, ElementsAreSignedWith32Bits)
{
    const Load tags =
        loadTags(R"({"Elements":2147483647,"Attributes":1},{"Elements":2147483648},{"Elements":4294967295},)"
                 R"({"Elements":4294967298},{"Elements":-3,"Attributes":"-4"},{"Elements":2.9})");
    const TagTable& table = tags.database.tags;
    ASSERT_EQ(table.count(), 6);
    EXPECT_EQ(table[0].elements, 2147483647);
    EXPECT_EQ(table[0].attributes, 1);
    EXPECT_EQ(table[1].elements, -2147483647 - 1);
    EXPECT_EQ(table[2].elements, -1);
    EXPECT_EQ(table[3].elements, 2);
    EXPECT_EQ(table[4].elements, -3);
    EXPECT_EQ(table[4].attributes, -4);
    EXPECT_EQ(table[5].elements, 2);
}

TEST(TagList, AbsentMembersOfATagAreEmptyAndZero)
{
    const Load tags =
        loadTags(R"({},null,"x",[1],{"Name":null,"Description":false,"Size":{},"Elements":"x","Groups":null})");
    const TagTable& table = tags.database.tags;
    ASSERT_EQ(table.count(), 5);
    for (int i = 0; i < 5; ++i)
    {
        EXPECT_TRUE(table[i].name.empty()) << i;
        EXPECT_TRUE(table[i].description.empty()) << i;
        EXPECT_EQ(table[i].size + table[i].elements, 0) << i;
        EXPECT_EQ(table[i].groups, 0U) << i;
    }
}

TEST(TagList, NumbersAreTakenAsTheTextOfTheirValue)
{
    const Load tags = loadTags(R"({"Name":4711,"Description":1.50},{"Name":1e2,"Description":"1e2"})");
    const TagTable& table = tags.database.tags;
    ASSERT_EQ(table.count(), 2);
    EXPECT_EQ(table[0].name.view(), "4711");
    EXPECT_EQ(table[0].description.view(), "1.5");
    EXPECT_EQ(table[1].name.view(), "100");
    EXPECT_EQ(table[1].description.view(), "1e2");
}

TEST(TagList, TabInsideADescriptionIsKept)
{
    const Load tags = loadTags("{\"Name\":\"A\",\"Description\":\"one\ttwo\"},{\"Name\":\"B\"}");
    ASSERT_EQ(tags.database.tags.count(), 2);
    EXPECT_EQ(tags.database.tags[0].description.view(), "one\ttwo");
}

TEST(TagList, NumericTextCountsAsThatNumber)
{
    const Load tags = loadTags(R"({"Size":"12.9","Elements":"-3","Attributes":"1e2","Groups":" 5 "},)"
                               R"({"Size":"12 characters","Elements":"","Attributes":"0x10","Groups":"many"})");
    const TagTable& table = tags.database.tags;
    ASSERT_EQ(table.count(), 2);
    EXPECT_EQ(table[0].size, 12);
    EXPECT_EQ(table[0].elements, -3);
    EXPECT_EQ(table[0].attributes, 100);
    EXPECT_EQ(table[0].groups, 5U);
    EXPECT_EQ(table[1].size + table[1].elements + table[1].attributes, 0);
    EXPECT_EQ(table[1].groups, 0U);
}

TEST(TagList, TagsBeyondTheTableAreLeftOut)
{
    std::string tags;
    for (int i = 0; i < 200000; ++i)
        tags += "{\"Name\":\"T" + std::to_string(i) + "\",\"Groups\":" + (i == 0 ? "2097152" : "1") + "},";
    const Load full = loadTags(tags);
    const TagTable& table = full.database.tags;
    ASSERT_EQ(table.count(), tagCapacity);
    EXPECT_EQ(table[0].name.view(), "T1");
    EXPECT_EQ(table[tagCapacity - 1].name.view(), "T65536");
    EXPECT_EQ(table.find(InternedText("T65536")), tagCapacity - 1);
    EXPECT_EQ(table.find(InternedText("T65537")), std::nullopt);
}

TEST(TagList, LongTextsAreWhole)
{
    std::string text;
    text.resize(10000000, 'x');
    EXPECT_TRUE(loadTags("{\"Description\":\"" + text + "\"}").database.tags[0].description.view() == text);
}
