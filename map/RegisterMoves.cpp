#include "map/RegisterMoves.h"

#include <algorithm>

namespace
{

/// Moves slots of one space in one direction and remembers which ones cannot be shoved.
///
/// A slot is stuck when the used slots in its way end at a lock or at the end of the space. No shove frees it again:
/// the slots that hold it back are stuck themselves. So no run is looked through twice. Plain moves look one place
/// ahead and never ask.
class SlotMover
{
public:
    SlotMover(RegisterSlots& space, MoveDirection direction, bool mayShove)
        : slots(space), step(direction == MoveDirection::Down ? 1 : -1), shoving(mayShove), stuck(registersPerSpace)
    {
    }

    int stepLength() const { return step; }

    bool move(int address, std::vector<int>& changed)
    {
        if (!RegisterSlots::contains(address) || slots[address].locked)
            return false;
        const int end = endOfRun(address);
        if (!RegisterSlots::contains(end) || slots[end].locked || slots[end].used)
        {
            markStuck(address, end);
            return false;
        }
        pushRun(address, end, changed);
        return true;
    }

private:
    /// The first address beyond `address` whose slot need not or cannot be pushed along.
    int endOfRun(int address) const
    {
        int end = address + step;
        while (shoving && RegisterSlots::contains(end) && mayBePushed(end))
            end += step;
        return end;
    }

    bool mayBePushed(int address) const
    {
        const RegisterEntry& slot = slots[address];
        return slot.used && !slot.locked && !stuck[static_cast<std::size_t>(address)];
    }

    void markStuck(int first, int end)
    {
        for (int address = first; address != end; address += step)
            stuck[static_cast<std::size_t>(address)] = true;
    }

    void pushRun(int first, int freePlace, std::vector<int>& changed)
    {
        for (int place = freePlace; place != first; place -= step)
        {
            slots[place] = shifted(slots[place - step], static_cast<std::uint32_t>(step));
            changed.push_back(place);
        }
        slots[first].used = false;
    }

    RegisterSlots& slots;
    int step;
    bool shoving;
    std::vector<bool> stuck;
};

} // namespace

bool moveSlot(RegisterSlots& slots, int address, MoveDirection direction, bool shoving, std::vector<int>& changed)
{
    return SlotMover(slots, direction, shoving).move(address, changed);
}

MoveResult moveSlots(RegisterSlots& slots, std::span<const int> addresses, MoveDirection direction, bool shoving)
{
    SlotMover mover(slots, direction, shoving);
    MoveResult result;
    result.positions.reserve(addresses.size());
    result.changed.reserve(addresses.size());
    const auto moveOne = [&](int address)
    { result.positions.push_back(mover.move(address, result.changed) ? address + mover.stepLength() : address); };

    if (direction == MoveDirection::Up)
        std::for_each(addresses.begin(), addresses.end(), moveOne);
    else
        std::for_each(addresses.rbegin(), addresses.rend(), moveOne);
    return result;
}
