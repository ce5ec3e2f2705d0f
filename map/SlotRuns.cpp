#include "map/SlotRuns.h"

#include <array>
#include <bit>
#include <cstddef>

// Eight slots in three runs:
//
//   address         0   1   2   3   4   5   6   7
//   startAddress    0   1   2   3   3   3   6   7
//                   free        an object   free
//   startStep       1           0           1
//
// A full space has as many runs as objects. Slots in which a command has left something begin a run of their own:
// nothing about a slot is taken for granted.

namespace
{

using Words = std::array<std::uint64_t, sizeof(RegisterEntry) / sizeof(std::uint64_t)>;

/// The bits in which two slots differ: they have no padding, and equal texts have one handle.
Words differenceOf(const RegisterEntry& left, const RegisterEntry& right)
{
    const auto leftWords = std::bit_cast<Words>(left);
    auto difference = std::bit_cast<Words>(right);
    for (std::size_t i = 0; i < difference.size(); ++i)
        difference[i] ^= leftWords[i];
    return difference;
}

/// The bits of both addresses.
Words placeBits()
{
    RegisterEntry other;
    other.startAddress = ~other.startAddress;
    other.address = ~other.address;
    return differenceOf({}, other);
}

/// Whether two slots differ by their place at most. Word by word and without a branch: the library's comparison of
/// memory, for which the expected slot has to be written out first, takes 1 ms more for 262,144 slots.
bool areSameButPlace(const RegisterEntry& left, const RegisterEntry& right)
{
    const Words places = placeBits();
    const Words difference = differenceOf(left, right);
    std::uint64_t others = 0;
    for (std::size_t i = 0; i < difference.size(); ++i)
        others |= difference[i] & ~places[i];
    return others == 0;
}

} // namespace

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
    return slot.address == first.address + place && slot.startAddress == first.startAddress + startStep * place &&
           areSameButPlace(slot, first);
}
