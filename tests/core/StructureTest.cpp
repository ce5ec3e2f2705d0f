#include "tests/core/DatabaseFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace std::string_literals;

TEST(Structure, StructureThatIsNoArrayOrEmptyHasNoLable)
{
    for (const char* structure : {"[]", "null", "1", "\"lable\"", "{\"lable\":\"x\"}", "[1]", "[null]",
                                  "[[{\"lable\":\"x\"}]]", "[,{\"lable\":\"x\"}]"})
        EXPECT_EQ(load("{\"structure\":"s + structure + "}").result, LoadResult::LableMissing) << structure;
}

TEST(Structure, LableNeedsNoTextToBeThere)
{
    const Load noText = load(R"({"structure":[{"lable":null}],"database":[]})");
    EXPECT_EQ(noText.result, LoadResult::Loaded);
    EXPECT_EQ(nodesOf(noText.database), std::vector<std::string>{"||-1"});
    EXPECT_EQ(nodesOf(load(R"({"structure":[{"lable":7,"dbprefix":8}],"database":[]})").database),
              std::vector<std::string>{"7|8|-1"});
}

TEST(Structure, ChildrenThatAreNoArrayAreNone)
{
    const Load tree = load(
        R"({"structure":[{"lable":"a","structure":[{"structure":{"lable":"x"}},7,{"lable":"b","structure":null}]}],"database":[]})");
    EXPECT_EQ(nodesOf(tree.database), (std::vector<std::string>{"a||-1", "||0", "||0", "b||0"}));
}

TEST(Structure, NodesMoreThanAThousandLevelsDownAreLeftOut)
{
    const auto treeOf = [](int levels)
    {
        std::string json = "{\"database\":[],\"structure\":";
        for (int level = 0; level <= levels; ++level)
            json += "[{\"lable\":\"" + std::to_string(level) + "\",\"structure\":";
        json += "[]";
        for (int level = 0; level <= levels; ++level)
            json += "},{\"lable\":\"next\"}]";
        return load(json + "}").database.structure;
    };
    EXPECT_EQ(treeOf(3).size(), 7U);

    const auto deep = treeOf(5000);
    ASSERT_EQ(deep.size(), 2001U);
    EXPECT_EQ(deep[1000].label, "1000");
    EXPECT_EQ(deep[1000].parent, 999);
    EXPECT_EQ(deep[1001].label, "next");
    EXPECT_EQ(deep[1001].parent, 999);
    EXPECT_EQ(deep[2000].label, "next");
    EXPECT_EQ(deep[2000].parent, 0);
}

TEST(Structure, StructureNestedAMillionDeepIsCutAndReleased)
{
    std::string json = "{\"database\":[],\"structure\":";
    for (int level = 0; level < 1000000; ++level)
        json += "[{\"lable\":\"\",\"structure\":";
    json += "[]";
    for (int level = 0; level < 1000000; ++level)
        json += "}]";
    const Load deep = load(json + "}");
    EXPECT_EQ(deep.result, LoadResult::Loaded);
    EXPECT_EQ(deep.database.structure.size(), 1001U);
}
