#include "source/TagBatch.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

TagRecord withGroups(std::uint32_t groups)
{
    TagRecord tag;
    tag.groups = groups;
    return tag;
}

} // namespace

TEST(TagBatch, TagsAreEnteredWithTheirTextsInTheirOrder)
{
    for (const int count : {0, 1, 255, 256, 257, 1000})
    {
        TagTable table;
        TagBatch batch;
        for (int i = 0; i < count; ++i)
            batch.add(withGroups(static_cast<std::uint32_t>(i)), "N" + std::to_string(i), i % 3 == 0 ? "" : "D", table);
        batch.flush(table);
        ASSERT_EQ(table.count(), count);
        for (int i = 0; i < count; ++i)
        {
            ASSERT_EQ(table[i].name.view(), "N" + std::to_string(i));
            ASSERT_EQ(table[i].description.view(), i % 3 == 0 ? "" : "D");
            ASSERT_EQ(table[i].groups, static_cast<std::uint32_t>(i));
        }
    }
}

TEST(TagBatch, FlushingAgainEntersNothingTwice)
{
    TagTable table;
    TagBatch batch;
    batch.add({}, "A", "", table);
    batch.flush(table);
    batch.flush(table);
    EXPECT_EQ(table.count(), 1);
}

TEST(TagBatch, ClearedTagsAreNotEntered)
{
    TagTable table;
    TagBatch batch;
    batch.add({}, "A", "a", table);
    batch.clear();
    batch.add({}, "B", "b", table);
    batch.flush(table);
    ASSERT_EQ(table.count(), 1);
    EXPECT_EQ(table[0].name.view(), "B");
    EXPECT_EQ(table[0].description.view(), "b");
}
