#include "map/Compress.h"

#include <algorithm>

namespace
{

/// Moves an object up to `place`, register by register, leaving free slots; it may overlap its old place.
/// @param head  address of its head, above `place`
void moveObjectUp(RegisterSlots& slots, int head, int place)
{
    const std::int64_t afterObject = std::int64_t{head} + slots[head].registerCount;
    const int end = static_cast<int>(std::min<std::int64_t>(afterObject, registersPerSpace));
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
    if (addresses.front() > addresses.back())
        return CompressResult::Unchanged;
    const auto first = slots.begin() + addresses.front();
    const auto end = slots.begin() + addresses.back() + 1;
    if (std::any_of(first, end, [](const RegisterEntry& slot) { return slot.locked; }))
        return CompressResult::Locked;
    // Objects before the first gap stand where they belong already.
    const auto gap = std::find_if(first, end, [](const RegisterEntry& slot) { return !slot.used; });
    if (gap == end)
        return CompressResult::Unchanged;
    closeGaps(slots, static_cast<int>(gap - slots.begin()), addresses.back());
    return CompressResult::Compressed;
}
