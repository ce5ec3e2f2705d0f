#include "map/SlotRuns.h"

#include "tests/core/Chance.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>

namespace
{

/// A space of objects, free stretches and slots that commands have left with something of their own.
std::unique_ptr<RegisterSlots> anySpace(Chance& chance)
{
    auto slots = std::make_unique<RegisterSlots>();
    for (int address = 0; address < registersPerSpace;)
    {
        const int count = chance.pick(1, 40);
        const int kind = chance.pick(0, 3);
        RegisterEntry values = freeSlot(address);
        values.used = kind < 2;
        values.registerCount = static_cast<std::uint32_t>(count);
        values.tagname = InternedText("RUN_" + std::to_string(chance.pick(0, 3)));
        for (int place = 0; place < count && address < registersPerSpace; ++place, ++address)
        {
            if (kind == 3)
                continue;
            values.address = static_cast<std::uint32_t>(address);
            if (kind == 1)
                values.startAddress = values.address;
            (*slots)[address] = values;
        }
    }
    return slots;
}

void changeOneField(RegisterEntry& slot, Chance& chance)
{
    switch (chance.pick(0, 4))
    {
    case 0:
        *chance.oneOf({&slot.startAddress, &slot.address, &slot.registerCount}) +=
            chance.oneOf({1U, 65'536U, 0xFFFFFFFFU});
        break;
    case 1:
    {
        bool& flag = *chance.oneOf({&slot.used, &slot.locked, &slot.write, &slot.typeValid, &slot.writeValid,
                                    &slot.SwapBytes, &slot.SwapWords, &slot.SwapLongs});
        flag = !flag;
        break;
    }
    case 2:
        *chance.oneOf({&slot.tagname, &slot.description}) = InternedText("ANOTHER");
        break;
    case 3:
        slot.type = slot.type == DataType::Float ? DataType::Double : DataType::Float;
        break;
    default:
        ++slot.tagIndex;
    }
}

} // namespace

TEST(SlotRuns, MatchTheSlotsTheyWereMadeOfAndNoneThatDifferInAField)
{
    Chance chance(41);
    for (int round = 0; round < 20; ++round)
    {
        const auto slots = anySpace(chance);
        const SlotRuns runs(*slots);
        ASSERT_TRUE(runs.match(*slots)) << round;
        for (int change = 0; change < 20; ++change)
        {
            RegisterEntry& slot = (*slots)[chance.pick(0, lastAddress)];
            const RegisterEntry before = slot;
            changeOneField(slot, chance);
            ASSERT_FALSE(runs.match(*slots)) << round << ' ' << change;
            slot = before;
        }
    }
}

TEST(SlotRuns, TellAFreeSlotThatPointsAtItsNeighbourFromOneThatPointsAtItself)
{
    const auto space = std::make_unique<RegisterSlots>();
    RegisterSlots& slots = *space;
    const SlotRuns free;
    EXPECT_TRUE(free.match(slots));
    slots[0].startAddress = 1;
    const SlotRuns changed(slots);
    EXPECT_TRUE(changed.match(slots));
    EXPECT_FALSE(free.match(slots));
    slots[0] = freeSlot(0);
    EXPECT_FALSE(changed.match(slots));
}
