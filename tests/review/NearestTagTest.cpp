#include "review/NearestTag.h"

#include "tests/core/Chance.h"
#include "tests/core/TagBuilder.h"
#include "text/Characters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace
{

/// The name that is suggested, "none" for none.
std::string suggested(std::string_view name, std::initializer_list<const char*> names)
{
    const TagTable tags = tableOf(names);
    const std::optional<int> index = NearestTag(tags).find(name);
    return index ? std::string(tags[*index].name.view()) : "none";
}

/// A short name of few letters, so that two of them are often near.
std::string drawnName(Chance& chance)
{
    std::string name;
    for (int left = chance.pick(0, 6); left > 0; --left)
        name += chance.oneOf({'A', 'B', 'C', 'b'});
    return name;
}

/// As one would write it down, without regard to time: what the last characters may have become, and all the rest.
int slipsByDefinition(std::string_view one, std::string_view other)
{
    if (one.empty() || other.empty())
        return static_cast<int>(std::max(one.size(), other.size()));
    const auto without = [](std::string_view text, std::size_t last) { return text.substr(0, text.size() - last); };
    const auto same = [](char a, char b) { return lowerCase(a) == lowerCase(b); };
    int slips = slipsByDefinition(without(one, 1), without(other, 1)) + (same(one.back(), other.back()) ? 0 : 1);
    slips =
        std::min({slips, slipsByDefinition(without(one, 1), other) + 1, slipsByDefinition(one, without(other, 1)) + 1});
    const bool areExchanged = one.size() > 1 && other.size() > 1 && same(one.back(), other[other.size() - 2]) &&
                              same(one[one.size() - 2], other.back());
    return areExchanged ? std::min(slips, slipsByDefinition(without(one, 2), without(other, 2)) + 1) : slips;
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

TEST(NearestTag, CountsTheSlipsOfAnyTextsAsTheirDefinitionDoes)
{
    Chance chance(14);
    for (int round = 0; round < 2000; ++round)
    {
        const std::string one = drawnName(chance);
        const std::string other = drawnName(chance);
        for (int limit = 0; limit <= 4; ++limit)
            ASSERT_EQ(slipsBetween(one, other, limit), std::min(slipsByDefinition(one, other), limit + 1))
                << one << ' ' << other << ' ' << limit;
    }
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
        tags.append(tagOf("TAG_" + std::to_string(10'000'000 + i)));
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
    const TagTable tags = tableOf({"INT_P01_START_CMD", "INT_P01_STOP_CMD"});
    NearestTag nearest(tags);
    EXPECT_EQ(nearest.find("INT_P03_START_CMD"), std::nullopt);
    EXPECT_EQ(nearest.find("INT_P01_STRAT_CMD"), 0);
}
