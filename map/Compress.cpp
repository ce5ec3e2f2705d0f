#include "map/Compress.h"

#include <algorithm>

// Compressing 100..108; dots are free slots:
//
//   before   100: A . B B . . . C C        A stands before the first gap and stays
//   after    100: A B B C C . . . .        the gaps are one at the end
//
// Nothing outside the range moves, so the free slots stay inside it too.

namespace
{

/// Moves an object up to `place`, register by register, leaving free slots; it may overlap its old place.
/// @param head  address of its head, above `place`
void moveObjectUp(RegisterSlots& slots, int head, int place)
{
    const std::int64_t afterObject = std::int64_t{head} + slots[head].registerCount;
    const int end = static_cast<int>(std::min<std::int64_t>(afterObject, registersPerSpace));
    // Lowest register first: `to` is below `from` all the time, so nothing is written over before it has moved.
    for (int from = head, to = place; from < end; ++from, ++to)
    {
        RegisterEntry& moved = slots[to];
        moved = slots[from];
        moved.startAddress = static_cast<std::uint32_t>(place);
        moved.address = static_cast<std::uint32_t>(to);
        slots[from] = freeSlot(from);
    }
}

/// @param place  address of the first free slot, 0..`last`
void closeGaps(RegisterSlots& slots, int place, int last)
{
    for (int address = place; address <= last; ++address)
    {
        const RegisterEntry& slot = slots[address];
        if (!slot.used || !isHead(slot))
            continue;
        // Read before the move, which clears the slot; a count from a file may reach beyond the space.
        const std::uint32_t length = slot.registerCount;
        moveObjectUp(slots, address, place);
        // The object reaches to the end of the space or beyond: no place is left for another one after it.
        if (length > static_cast<std::uint32_t>(lastAddress - place))
            return;
        place += static_cast<int>(length);
    }
}

} // namespace

CompressResult compressRegisters(RegisterSlots& slots, std::span<const int> addresses)
{
    if (addresses.empty() || !RegisterSlots::contains(addresses.front()) || !RegisterSlots::contains(addresses.back()))
        return CompressResult::NothingSelected;
    // Whoever lists the registers from the highest down has given no range; nobody sorts them here.
    if (addresses.front() > addresses.back())
        return CompressResult::Unchanged;
    const auto first = slots.begin() + addresses.front();
    const auto end = slots.begin() + addresses.back() + 1;
    // A lock in a gap counts too: a controller relies on that register as it is.
    if (std::any_of(first, end, [](const RegisterEntry& slot) { return slot.locked; }))
        return CompressResult::Locked;
    // Objects before the first gap stand where they belong already.
    const auto gap = std::find_if(first, end, [](const RegisterEntry& slot) { return !slot.used; });
    if (gap == end)
        return CompressResult::Unchanged;
    closeGaps(slots, static_cast<int>(gap - slots.begin()), addresses.back());
    return CompressResult::Compressed;
}
