#include "map/RegisterSlots.h"

#include <algorithm>

namespace
{

/// Copied whole and then addressed: building each slot field by field takes seven times as long.
constexpr RegisterEntry anyFreeSlot = freeSlot(0);

} // namespace

RegisterSlots::RegisterSlots()
{
    // Not by default: a free slot names itself, and each of them has an address of its own.
    clearSlots(*this, 0, registersPerSpace);
}

void clearSlots(RegisterSlots& slots, int first, std::uint32_t count)
{
    // A file may say any count, so the end is computed in more than 32 bits.
    const auto end = static_cast<int>(std::min<std::int64_t>(std::int64_t{first} + count, registersPerSpace));
    for (int address = first; address < end; ++address)
    {
        RegisterEntry& slot = slots[address];
        slot = anyFreeSlot;
        slot.startAddress = static_cast<std::uint32_t>(address);
        slot.address = slot.startAddress;
    }
}
