#include "map/RegisterMoves.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

// A shove of A at 10 down by one; L is locked, the dot is a free slot:
//
//   run ends at a free slot      10: A B B .      becomes      10: . A B B
//   run ends at a lock           10: A B B L      stays, and A, B and B are stuck
//
// A plain move is a run of one slot. A slot that is held back stays held back for the rest of the command, since all
// slots go the same way and no command moves a lock.

SlotMover::SlotMover(RegisterSlots& space, MoveDirection direction, bool mayShove)
    : slots(space), step(direction == MoveDirection::Down ? 1 : -1), shoving(mayShove), stuck(registersPerSpace)
{
}

bool SlotMover::moveSlot(int address, std::vector<int>& changed)
{
    if (!RegisterSlots::contains(address) || slots[address].locked)
        return false;
    const int end = endOfRun(address);
    // A free slot that is locked holds a run back as well: it is promised to stay what it is.
    if (!RegisterSlots::contains(end) || slots[end].locked || slots[end].used)
    {
        markStuck(address, end);
        return false;
    }
    pushRun(address, end, changed);
    return true;
}

/// The first address beyond `address` whose slot need not or cannot be pushed along.
int SlotMover::endOfRun(int address) const
{
    int end = address + step;
    while (shoving && RegisterSlots::contains(end) && mayBePushed(end))
        end += step;
    return end;
}

bool SlotMover::mayBePushed(int address) const
{
    const RegisterEntry& slot = slots[address];
    return slot.used && !slot.locked && !stuck[static_cast<std::size_t>(address)];
}

void SlotMover::markStuck(int first, int end)
{
    for (int address = first; address != end; address += step)
        stuck[static_cast<std::size_t>(address)] = true;
}

/// Moves the run from its far end, so that no slot is written over before it has moved. A run may be 65,535 slots long:
/// pushing each slot by a call of its own would need more stack than some systems give.
void SlotMover::pushRun(int first, int freePlace, std::vector<int>& changed)
{
    for (int place = freePlace; place != first; place -= step)
    {
        slots[place] = shifted(slots[place - step], static_cast<std::uint32_t>(step));
        changed.push_back(place);
    }
    // Only the flag, on purpose: by the rest, a paste on the row of this slot still finds the object's old head.
    slots[first].used = false;
}

MoveResult moveSlots(RegisterSlots& slots, std::span<const int> addresses, MoveDirection direction, bool shoving)
{
    SlotMover mover(slots, direction, shoving);
    MoveResult result;
    result.positions.reserve(addresses.size());
    result.changed.reserve(addresses.size());
    const auto moveOne = [&](int address)
    { result.positions.push_back(mover.moveSlot(address, result.changed) ? address + mover.stepLength() : address); };

    // The slot nearest to where they go has to be first, or the slots of one object would stand in each other's way.
    if (direction == MoveDirection::Up)
        std::for_each(addresses.begin(), addresses.end(), moveOne);
    else
        std::for_each(addresses.rbegin(), addresses.rend(), moveOne);
    return result;
}
