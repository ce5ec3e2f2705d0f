#include "tests/core/DatabaseFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

std::string withGroups(const std::string& groups)
{
    return R"({"database_groups":[)" + groups + R"(],"structure":[{"lable":"Plant"}],"database":[]})";
}

std::vector<std::uint32_t> masksOf(const std::string& groups)
{
    std::vector<std::uint32_t> masks;
    for (const TagGroup& group : load(withGroups(groups)).database.groups)
        masks.push_back(group.mask);
    return masks;
}

} // namespace

TEST(GroupList, GroupsAreOptional)
{
    EXPECT_TRUE(loadTags("").database.groups.empty());
    EXPECT_TRUE(load(R"({"database_groups":null,"structure":[{"lable":"x"}],"database":[]})").database.groups.empty());
}

TEST(GroupList, MasksAreHexadecimal)
{
    EXPECT_EQ(
        masksOf(
            R"({"mask":"10"},{"mask":"0x20"},{"mask":"fF"},{"mask":" 4 x"},{"mask":"FFFFFFFFF"},{"mask":"no"},{"mask":""})"),
        (std::vector<std::uint32_t>{0x10, 0x20, 0xFF, 4, 0xFFFFFFFF, 0, 0}));
}

TEST(GroupList, MaskWrittenAsNumberIsReadFromItsDecimalText)
{
    EXPECT_EQ(masksOf(R"({"mask":16},{"mask":200000},{"mask":1.5},{"mask":1e2},{"mask":2e5},{"mask":"1e2"})"),
              (std::vector<std::uint32_t>{0x16, 1, 0x100, 0x1e2}));
}

TEST(GroupList, AbsentMembersOfAGroupAreEmptyAndZero)
{
    const auto groups = load(withGroups(R"({},null,7,{"flag":null,"desc":true,"type":[]})")).database.groups;
    ASSERT_EQ(groups.size(), 4U);
    for (const TagGroup& group : groups)
    {
        EXPECT_EQ(group.flag + group.type + group.description, "");
        EXPECT_EQ(group.mask, 0U);
    }
}

TEST(GroupList, MoreThan32GroupsAreKept)
{
    std::string groups;
    for (int i = 0; i < 40; ++i)
        groups += R"({"mask":"1"},)";
    EXPECT_EQ(masksOf(groups).size(), 40U);
}

TEST(GroupList, OnlyExactlyTheReservedMaskIsLeftOut)
{
    EXPECT_EQ(masksOf(R"({"mask":"200000"},{"mask":"0x200000"},{"mask":"200001"},{"mask":"1200000"})"),
              (std::vector<std::uint32_t>{0x200001, 0x1200000}));
}
