#include "review/NearestTag.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

TagTable tableOf(std::initializer_list<std::string_view> names)
{
    TagTable tags;
    for (const std::string_view name : names)
    {
        TagRecord tag;
        tag.name = InternedText(name);
        tags.append(tag);
    }
    return tags;
}

/// The name that is suggested, "none" for none.
std::string suggested(std::string_view name, std::initializer_list<std::string_view> names)
{
    const TagTable tags = tableOf(names);
    const std::optional<int> index = NearestTag(tags).find(name);
    return index ? std::string(tags[*index].name.view()) : "none";
}

} // namespace

TEST(NearestTag, CountsSlips)
{
    EXPECT_EQ(slipsBetween("PUMP", "PUMP", 3), 0);
    EXPECT_EQ(slipsBetween("PUMP", "PUM", 3), 1);
    EXPECT_EQ(slipsBetween("PUMP", "PLUMP", 3), 1);
    EXPECT_EQ(slipsBetween("PUMP", "JUMP", 3), 1);
    EXPECT_EQ(slipsBetween("TRUB", "TURB", 3), 1);
    EXPECT_EQ(slipsBetween("pump", "PUMP", 3), 0);
    EXPECT_EQ(slipsBetween("", "AB", 3), 2);
    EXPECT_EQ(slipsBetween("KITTEN", "SITTING", 3), 3);
}

TEST(NearestTag, StopsCountingBeyondTheLimit)
{
    EXPECT_EQ(slipsBetween("ABCD", "WXYZ", 2), 3);
    EXPECT_EQ(slipsBetween("A", "ABCDEFG", 2), 3);
    EXPECT_EQ(slipsBetween(std::string(400, 'x'), std::string(400, 'y'), 3), 4);
    EXPECT_EQ(slipsBetween(std::string(400, 'x') + "a", std::string(400, 'x') + "b", 3), 1);
}

TEST(NearestTag, SuggestsTheNameWithTheFewestSlips)
{
    EXPECT_EQ(suggested("TANK_LEVLE", {"TANK_LEAVES", "TANK_LEVEL", "TANK_BEVEL"}), "TANK_LEVEL");
}

TEST(NearestTag, SuggestsTheFirstOfEquallyNearNames)
{
    EXPECT_EQ(suggested("PUMP_C", {"PUMP_AB", "PUMP_B", "PUMP_A"}), "PUMP_B");
    EXPECT_EQ(suggested("PUMP_C", {"PUMP_CC", "PUMP_B"}), "PUMP_CC");
}

TEST(NearestTag, SuggestsANameInOtherCapitalsBeforeAnyOther)
{
    EXPECT_EQ(suggested("Pump_Speed", {"PUMP_SPEES", "PUMP_SPEED"}), "PUMP_SPEED");
}

TEST(NearestTag, AllowsMoreSlipsInLongNames)
{
    EXPECT_EQ(suggested("AB", {"AC"}), "AC");
    EXPECT_EQ(suggested("AB", {"CD"}), "none");
    EXPECT_EQ(suggested("ABCDEFGH", {"ABXXEFGH"}), "ABXXEFGH");
    EXPECT_EQ(suggested("ABCDEFGH", {"AXXXEFGH"}), "none");
    EXPECT_EQ(suggested("ABCDEFGHIJKL", {"AXXXEFGHIJKL"}), "AXXXEFGHIJKL");
    EXPECT_EQ(suggested("ABCDEFGHIJKLMNOPQRST", {"AXXXXFGHIJKLMNOPQRST"}), "none");
}

TEST(NearestTag, SuggestsNothingFromAnEmptyDatabaseAndNoEmptyName)
{
    EXPECT_EQ(suggested("A", {}), "none");
    EXPECT_EQ(suggested("A", {""}), "none");
}

TEST(NearestTag, LeavesOffOnceItHasComparedSoManyNames)
{
    TagTable tags;
    for (int i = 0; i < tagCapacity; ++i)
    {
        TagRecord tag;
        tag.name = InternedText("TAG_" + std::to_string(10'000'000 + i));
        tags.append(tag);
    }
    NearestTag nearest(tags);
    EXPECT_EQ(nearest.find("TAG_1000000_"), 0);
    EXPECT_FALSE(nearest.isSpent());
    for (int i = 0; i < NearestTag::workLimit / tagCapacity; ++i)
        nearest.find("TAG_1000000_");
    EXPECT_TRUE(nearest.isSpent());
    EXPECT_EQ(nearest.find("TAG_1000000_"), std::nullopt);
}

TEST(NearestTag, IsNoNameThatDiffersInDigitsOnly)
{
    EXPECT_TRUE(differInDigitsOnly("INT_P03_START_CMD", "INT_P01_START_CMD"));
    EXPECT_TRUE(differInDigitsOnly("PUMP_9", "pump_10"));
    EXPECT_FALSE(differInDigitsOnly("PUMP_9", "pump_9"));
    EXPECT_FALSE(differInDigitsOnly("PUMP_O", "PUMP_0"));
    EXPECT_FALSE(differInDigitsOnly("P03_STRAT", "P03_START"));
    TagTable tags;
    for (const char* name : {"INT_P01_START_CMD", "INT_P01_STOP_CMD"})
    {
        TagRecord tag;
        tag.name = InternedText(name);
        tags.append(tag);
    }
    NearestTag nearest(tags);
    EXPECT_EQ(nearest.find("INT_P03_START_CMD"), std::nullopt);
    EXPECT_EQ(nearest.find("INT_P01_STRAT_CMD"), 0);
}
