#include "map/RegisterSlots.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

TEST(RegisterSlots, NewSpaceIsFreeAndIteratesInAddressOrder)
{
    const auto slots = std::make_unique<RegisterSlots>();
    int address = 0;
    for (const RegisterEntry& slot : *slots)
        ASSERT_EQ(slot, freeSlot(address++));
    EXPECT_EQ(address, RegisterSlots::size());
    EXPECT_EQ(address, 65'536);
}

TEST(RegisterSlots, ContainTheAddressesOfASpaceAndNoOthers)
{
    for (const int address : {0, 1, 65'535})
        EXPECT_TRUE(RegisterSlots::contains(address)) << address;
    for (const int address : {-1, 65'536, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_FALSE(RegisterSlots::contains(address)) << address;
    EXPECT_FALSE(RegisterSlots::contains(std::numeric_limits<std::uint32_t>::max()));
    EXPECT_FALSE(RegisterSlots::contains(std::int64_t{1} << 32U));
}

TEST(RegisterSlots, AddressReachesTheSlotOfThatNumber)
{
    const auto slots = std::make_unique<RegisterSlots>();
    (*slots)[65'535].description = InternedText("last");
    const RegisterSlots& same = *slots;
    EXPECT_EQ(&same[65'535], &*(same.end() - 1));
    EXPECT_EQ(same[65'535].description.view(), "last");
    EXPECT_EQ(&same[0], &*same.begin());
}

TEST(RegisterSlots, DifferInAnyFieldOfAnySlot)
{
    const auto one = std::make_unique<RegisterSlots>();
    const auto other = std::make_unique<RegisterSlots>(*one);
    EXPECT_TRUE(*one == *other);
    (*other)[40'000].SwapLongs = true;
    EXPECT_FALSE(*one == *other);
    *other = *one;
    EXPECT_TRUE(*one == *other);
}

#ifndef NDEBUG
TEST(RegisterSlotsDeathTest, AddressOutsideTheSpaceEndsADebugBuild)
{
    const auto slots = std::make_unique<RegisterSlots>();
    EXPECT_DEATH((*slots)[65'536].used = true, "contains");
    EXPECT_DEATH((*slots)[-1].used = true, "contains");
}
#endif
