#include "tests/core/DatabaseFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

TEST(DatabaseMembers, LastMemberOfANameCounts)
{
    const Load twice = load(
        R"({"database":[{"Name":"A"}],"structure":[],"database":[{"Name":"B","Name":"C"}],"structure":[{"lable":"x"}]})");
    ASSERT_EQ(twice.result, LoadResult::Loaded);
    ASSERT_EQ(twice.database.tags.count(), 1);
    EXPECT_EQ(twice.database.tags[0].name.view(), "C");
}

TEST(DatabaseMembers, LastListOfANameCountsAlone)
{
    const Load groups = load(R"({"database_groups":[{"flag":"A"}],"database_groups":[{"flag":"B","flag":"C"}]})");
    ASSERT_EQ(groups.database.groups.size(), 1U);
    EXPECT_EQ(groups.database.groups[0].flag, "C");

    EXPECT_TRUE(load(R"({"database_groups":[{"flag":"A"}],"database_groups":null})").database.groups.empty());
    EXPECT_EQ(load(R"({"structure":[{"lable":"x"}],"structure":null})").result, LoadResult::LableMissing);
    EXPECT_EQ(load(R"({"structure":[{"lable":"x"}],"database":[{}],"database":7})").database.tags.count(), 0);

    const Load nodes = load(
        R"({"structure":[{"structure":[{"lable":"gone","structure":[{}]}],"lable":"top","structure":[{"lable":"kept",)"
        R"("structure":[{},{}],"structure":{}}]}],"database":[]})");
    EXPECT_EQ(nodesOf(nodes.database), (std::vector<std::string>{"top||-1", "kept||0"}));
}

TEST(DatabaseMembers, LastValueCountsAlsoWhenItIsOfAnotherKind)
{
    const Load tags = loadTags(
        R"({"Name":"A","Type":"String","Size":5,"Groups":2097152,"Name":[],"Type":{},"Size":null,"Groups":true})");
    const TagTable& table = tags.database.tags;
    ASSERT_EQ(table.count(), 1);
    EXPECT_TRUE(table[0].name.empty());
    EXPECT_EQ(table[0].type, TagType::Integer);
    EXPECT_EQ(table[0].size, 0);
    EXPECT_EQ(table[0].groups, 0U);
}

TEST(DatabaseMembers, MembersInsideOtherMembersMeanNothing)
{
    const Load nested =
        load(R"({"other":{"database":[{"Name":"no"}],"structure":[{"lable":"no"}]},"more":[[{"database":[]}]],)"
             R"("database_groups":[[{"flag":"no"}],{"desc":{"flag":"no"},"flag":"yes"}],)"
             R"("structure":[{"x":[{"lable":"no"}],"lable":"yes","y":{"lable":"no"}}],)"
             R"("database":[[{"Name":"no"}],{"Size":{"Name":"no"},"Name":"yes","Groups":[{"Name":"no"}]}]})");
    ASSERT_EQ(nested.result, LoadResult::Loaded);
    ASSERT_EQ(nested.database.groups.size(), 2U);
    EXPECT_EQ(nested.database.groups[0].flag, "");
    EXPECT_EQ(nested.database.groups[1].flag, "yes");
    EXPECT_EQ(nodesOf(nested.database), std::vector<std::string>{"yes||-1"});
    ASSERT_EQ(nested.database.tags.count(), 2);
    EXPECT_EQ(nested.database.tags[0].name.view(), "");
    EXPECT_EQ(nested.database.tags[1].name.view(), "yes");
}

TEST(DatabaseMembers, MembersMayComeInAnyOrder)
{
    const Load mixed = load(
        R"({"database":[{"Groups":3,"Name":"A","Elements":2}],"structure":[{"structure":[{"dbprefix":"b","lable":"B"}],)"
        R"("lable":"A"}],"database_groups":[{"desc":"d","mask":"1"}]})");
    ASSERT_EQ(mixed.result, LoadResult::Loaded);
    EXPECT_EQ(mixed.database.groups.at(0).mask, 1U);
    EXPECT_EQ(nodesOf(mixed.database), (std::vector<std::string>{"A||-1", "B|b|0"}));
    EXPECT_EQ(mixed.database.tags[0].groups, 3U);
    EXPECT_EQ(mixed.database.tags[0].elements, 2);
}

TEST(DatabaseMembers, RootMemberRepeatedAMillionTimesIsReadAtOnce)
{
    for (const char* member : {R"("database":[],)", R"("database":[{}],)", R"("structure":[{}],)"})
    {
        std::string json = "{";
        for (int i = 0; i < 1000000; ++i)
            json += member;
        const Load last = load(json + R"("structure":[{"lable":"Plant"}],"database":[{"Name":"A"}]})");
        EXPECT_EQ(last.result, LoadResult::Loaded);
        ASSERT_EQ(last.database.tags.count(), 1);
        EXPECT_EQ(last.database.tags.find(InternedText("A")), 0);
    }
}
