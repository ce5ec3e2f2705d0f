#include "source/TagTable.h"

#include "tests/core/TagBuilder.h"

#include <gtest/gtest.h>

#include <string>

TEST(TagTable, WithoutTagsEveryRecordIsUnusedAndTheEmptyNameFindsTheFirst)
{
    const TagTable tags;
    EXPECT_EQ(tags.count(), 0);
    EXPECT_TRUE(tags[0].name.empty());
    EXPECT_EQ(tags[tagCapacity - 1].size, 0);
    EXPECT_EQ(tags.find(InternedText()), 0);
    EXPECT_EQ(tags.find(InternedText("ANY_NAME")), std::nullopt);
}

TEST(TagTable, FirstOfEqualNamesIsFound)
{
    TagTable table;
    table.append(tagOf("A"));
    table.append(tagOf("B"));
    table.append(tagOf("A"));
    EXPECT_EQ(table.count(), 3);
    EXPECT_EQ(table.find(InternedText("A")), 0);
    EXPECT_EQ(table.find(InternedText("B")), 1);
    EXPECT_EQ(table.find(InternedText("a")), std::nullopt);
}

TEST(TagTable, EmptyNameIsTheFirstRecordThatHasNone)
{
    TagTable table;
    EXPECT_EQ(table.find(InternedText()), 0);
    table.append(tagOf("A"));
    EXPECT_EQ(table.find(InternedText()), 1);
    table.append(tagOf(""));
    table.append(tagOf("B"));
    EXPECT_EQ(table.find(InternedText()), 1);
}

TEST(TagTable, FullTableTakesNoMoreAndFindsEveryName)
{
    TagTable table;
    for (int i = 0; i < tagCapacity; ++i)
        ASSERT_TRUE(table.append(tagOf(std::to_string(i))));
    EXPECT_FALSE(table.append(tagOf("one more")));
    EXPECT_EQ(table.count(), tagCapacity);
    for (int i = 0; i < tagCapacity; ++i)
        ASSERT_EQ(table.find(InternedText(std::to_string(i))), i);
    EXPECT_EQ(table.find(InternedText("one more")), std::nullopt);
    EXPECT_EQ(table.find(InternedText()), std::nullopt);
}

TEST(TagTable, ClearedTableIsAsNew)
{
    TagTable table;
    TagRecord record = tagOf("A");
    record.type = TagType::String;
    table.append(record);
    table.clear();
    EXPECT_EQ(table.count(), 0);
    EXPECT_EQ(table.find(InternedText("A")), std::nullopt);
    EXPECT_EQ(table[0].type, TagType::Integer);
    EXPECT_TRUE(table[0].name.empty());
}

TEST(TagTable, ClearedTableHasForgottenEveryNameAlsoThoseOfSeveralRecords)
{
    TagTable table;
    for (int i = 0; i < tagCapacity; ++i)
        ASSERT_TRUE(table.append(tagOf(std::to_string(i % 1000 * 7))));
    table.clear();
    for (int i = 0; i < 7000; ++i)
        ASSERT_EQ(table.find(InternedText(std::to_string(i))), std::nullopt) << i;
    EXPECT_EQ(table.find(InternedText()), 0);
    table.append(tagOf("7"));
    EXPECT_EQ(table.find(InternedText("7")), 0);
}
