#include "source/TagTable.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

TagRecord named(const std::string& name)
{
    TagRecord record;
    record.name = InternedText(name);
    return record;
}

} // namespace

TEST(TagTable, FirstOfEqualNamesIsFound)
{
    TagTable table;
    table.append(named("A"));
    table.append(named("B"));
    table.append(named("A"));
    EXPECT_EQ(table.count(), 3);
    EXPECT_EQ(table.find(InternedText("A")), 0);
    EXPECT_EQ(table.find(InternedText("B")), 1);
    EXPECT_EQ(table.find(InternedText("a")), std::nullopt);
}

TEST(TagTable, EmptyNameIsTheFirstRecordThatHasNone)
{
    TagTable table;
    EXPECT_EQ(table.find(InternedText()), 0);
    table.append(named("A"));
    EXPECT_EQ(table.find(InternedText()), 1);
    table.append(named(""));
    table.append(named("B"));
    EXPECT_EQ(table.find(InternedText()), 1);
}

TEST(TagTable, FullTableTakesNoMoreAndFindsEveryName)
{
    TagTable table;
    for (int i = 0; i < tagCapacity; ++i)
        ASSERT_TRUE(table.append(named(std::to_string(i))));
    EXPECT_FALSE(table.append(named("one more")));
    EXPECT_EQ(table.count(), tagCapacity);
    for (int i = 0; i < tagCapacity; ++i)
        ASSERT_EQ(table.find(InternedText(std::to_string(i))), i);
    EXPECT_EQ(table.find(InternedText("one more")), std::nullopt);
    EXPECT_EQ(table.find(InternedText()), std::nullopt);
}

TEST(TagTable, ClearedTableIsAsNew)
{
    TagTable table;
    TagRecord record = named("A");
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
        ASSERT_TRUE(table.append(named(std::to_string(i % 1000 * 7))));
    table.clear();
    for (int i = 0; i < 7000; ++i)
        ASSERT_EQ(table.find(InternedText(std::to_string(i))), std::nullopt) << i;
    EXPECT_EQ(table.find(InternedText()), 0);
    table.append(named("7"));
    EXPECT_EQ(table.find(InternedText("7")), 0);
}
