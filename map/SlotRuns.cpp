#include "map/SlotRuns.h"

#include <cstring>

// Eight slots in three runs:
//
//   address         0   1   2   3   4   5   6   7
//   startAddress    0   1   2   3   3   3   6   7
//                   free        an object   free
//   startStep       1           0           1
//
// A full space has as many runs as objects. Slots in which a command has left something begin a run of their own:
// nothing about a slot is taken for granted.

SlotRuns::SlotRuns(const RegisterSlots& slots)
{
    for (const RegisterEntry& slot : slots)
    {
        if (runs.empty() || !extend(runs.back(), slot))
            runs.push_back({slot});
    }
}

bool SlotRuns::match(const RegisterSlots& slots) const
{
    const RegisterEntry* slot = slots.begin();
    for (const Run& run : runs)
    {
        for (std::uint32_t place = 0; place < run.length; ++place)
        {
            if (!run.has(*slot++, place))
                return false;
        }
    }
    return true;
}

/// Takes the slot into the run that ends before it.
/// @return false when it differs by more than its place
bool SlotRuns::extend(Run& run, const RegisterEntry& slot)
{
    if (run.length == 1)
        run.startStep = slot.startAddress - run.first.startAddress;
    if (!run.has(slot, run.length))
        return false;
    ++run.length;
    return true;
}

bool SlotRuns::Run::has(const RegisterEntry& slot, std::uint32_t place) const
{
    RegisterEntry expected = first;
    expected.address += place;
    expected.startAddress += startStep * place;
    // Slots have no padding and equal texts have one handle, so equal bytes are equal slots.
    return std::memcmp(&slot, &expected, sizeof slot) == 0;
}
