#include "source/TagRow.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

TagRecord pump()
{
    TagRecord record;
    record.name = InternedText("PMP1_SPEED");
    record.description = InternedText("Speed");
    record.type = TagType::Numeric;
    record.size = 44;
    record.groups = 5;
    return record;
}

TagDatabase databaseOf(const TagRecord& record, const std::vector<TagGroup>& groups = {})
{
    TagDatabase database;
    database.groups = groups;
    database.tags.append(record);
    return database;
}

std::string flagsOf(const std::vector<std::string>& flags)
{
    std::vector<TagGroup> groups;
    groups.reserve(flags.size());
    for (const std::string& flag : flags)
        groups.push_back({flag, "", "", 1});
    return tagCell(databaseOf(pump(), groups), 0, 3).text;
}

} // namespace

TEST(TagRow, ColumnsShowTheTag)
{
    const TagDatabase database = databaseOf(pump(), {{"ALM", "", "", 1}});
    const std::vector<std::string> expected{"PMP1_SPEED", "Float", "44", "ALM", "Speed", "0"};
    for (int column = 0; column < tagColumnCount; ++column)
        EXPECT_EQ(tagCell(database, 0, column).text, expected[static_cast<std::size_t>(column)]);
}

TEST(TagRow, TypeAndFlagsHaveTonesOfTheirOwn)
{
    const TagDatabase database = databaseOf(pump());
    EXPECT_EQ(tagCell(database, 0, 0).tone, TagTone::Plain);
    EXPECT_EQ(tagCell(database, 0, 1).tone, TagTone::Float);
    EXPECT_EQ(tagCell(database, 0, 2).tone, TagTone::Plain);
    EXPECT_EQ(tagCell(database, 0, 3).tone, TagTone::Flags);
    EXPECT_EQ(tagCell(database, 0, 4).tone, TagTone::Plain);
    EXPECT_EQ(tagCell(database, 0, 5).tone, TagTone::Plain);
}

TEST(TagRow, EachTypeHasItsWordAndTone)
{
    const auto typeCell = [](int code)
    {
        TagRecord record = pump();
        record.type = static_cast<TagType>(code);
        return tagCell(databaseOf(record), 0, 1);
    };
    EXPECT_EQ(typeCell(0).text, "Integer");
    EXPECT_EQ(typeCell(0).tone, TagTone::Integer);
    EXPECT_EQ(typeCell(1).text, "Float");
    EXPECT_EQ(typeCell(2).text, "String");
    EXPECT_EQ(typeCell(2).tone, TagTone::String);
    for (const int code : {3, 255})
    {
        EXPECT_EQ(typeCell(code).text, "Unknown");
        EXPECT_EQ(typeCell(code).tone, TagTone::UnknownType);
    }
}

TEST(TagRow, SizeIsDecimal)
{
    TagRecord record = pump();
    record.size = 255;
    EXPECT_EQ(tagCell(databaseOf(record), 0, 2).text, "255");
    record.size = 0;
    EXPECT_EQ(tagCell(databaseOf(record), 0, 2).text, "0");
}

TEST(TagRow, FlagsAreThoseOfTheGroupsOfTheTagInTheirOrder)
{
    const std::vector<TagGroup> groups{
        {"D", "", "", 4}, {"B", "", "", 2}, {"BA", "", "", 3}, {"A", "", "", 1}, {"NONE", "", "", 0}};
    EXPECT_EQ(tagCell(databaseOf(pump(), groups), 0, 3).text, "D-BA-A");
}

TEST(TagRow, TagInNoGroupHasNoFlags)
{
    TagRecord record = pump();
    record.groups = 0;
    EXPECT_EQ(tagCell(databaseOf(record, {{"A", "", "", 1}}), 0, 3).text, "");
    EXPECT_EQ(tagCell(databaseOf(pump()), 0, 3).text, "");
}

TEST(TagRow, FlagsAreCutBeforeTheirLastHyphen)
{
    EXPECT_EQ(flagsOf({"A"}), "A");
    EXPECT_EQ(flagsOf({""}), "");
    EXPECT_EQ(flagsOf({"", ""}), "-");
    EXPECT_EQ(flagsOf({"A", ""}), "A-");
    EXPECT_EQ(flagsOf({"", "A"}), "-A");
    EXPECT_EQ(flagsOf({"A-B"}), "A-B");
    EXPECT_EQ(flagsOf({"A-"}), "A-");
    EXPECT_EQ(flagsOf({"-"}), "-");
}

TEST(TagRow, IndexIsThatOfTheTable)
{
    TagDatabase database;
    for (int i = 0; i < tagCapacity; ++i)
        database.tags.append(pump());
    EXPECT_EQ(tagCell(database, 65535, 5).text, "65535");
    EXPECT_EQ(tagCell(database, 7, 5).text, "7");
}

TEST(TagRow, OtherColumnsAreEmpty)
{
    const TagDatabase database = databaseOf(pump());
    EXPECT_EQ(tagCell(database, 0, -1).text, "");
    EXPECT_EQ(tagCell(database, 0, 6).text, "");
}
