#include "map/RegisterMap.h"

#include <algorithm>
#include <new>
#include <utility>

// An object of four registers at 10, and the free slots beside it:
//
//   address          9    10    11    12    13    14
//   startAddress     9    10    10    10    10    14
//   used             -    yes   yes   yes   yes   -
//                  free   head  continuation slots  free
//
// Every slot of an object has all of its values, so each row, mark and lock can be told from one slot. The start
// address is what makes the four belong together: it leads from any of them to the head, where the object's registers
// begin.

RegisterMap::RegisterMap() : spaces(freeSpaces()) {}

std::unique_ptr<RegisterMap::Spaces> RegisterMap::freeSpaces()
{
    void* const memory = ::operator new(sizeof(Spaces), std::align_val_t(alignof(Spaces)));
    preferLargePages(memory, sizeof(Spaces));
    // Its own constructor fills the slots. With parentheses they would be filled with zeros before that.
    return std::unique_ptr<Spaces>(::new (memory) Spaces);
}

void RegisterMap::initialise()
{
    for (const RegisterSpace space : allSpaces)
        clearSlots(slots(space), 0, registersPerSpace);
    currentSpace = RegisterSpace::Holding;
    clipboard.clear();
    errorCount = 0;
}

void RegisterMap::clearSlot(RegisterSpace space, int address)
{
    if (RegisterSlots::contains(address))
        clearSlots(slots(space), address, 1);
}

bool RegisterMap::eraseObject(RegisterSpace space, int address)
{
    if (!RegisterSlots::contains(address))
        return false;
    const RegisterEntry& judge = currentSlots()[address];
    if (judge.locked)
        return false;
    // The space that is shown is cleared here, also when another one was given: required, and the purge relies on it.
    if (isContinuation(judge))
        clearSlot(currentSpace, address);
    else
        clearSlots(slots(space), address, registersTaken(judge));
    return true;
}

void RegisterMap::placeObject(RegisterSpace space, int start, const RegisterEntry& entry, int count)
{
    if (!RegisterSlots::contains(start))
        return;
    RegisterEntry slot = entry; // a copy, because the template may be one of the slots that are written over
    slot.used = true;
    slot.startAddress = static_cast<std::uint32_t>(start);
    // An object that runs past the end of the space loses those registers but keeps its count: that is what its file
    // said, and what is written back.
    const int end = static_cast<int>(std::min<std::int64_t>(std::int64_t{start} + count, registersPerSpace));
    for (int address = start; address < end; ++address)
    {
        slot.address = static_cast<std::uint32_t>(address);
        slots(space)[address] = slot;
    }
}

void RegisterMap::takeSnapshot()
{
    // Comparing is then one pass over memory, and no command has to keep a list of changes.
    std::array<SlotRuns, spaceCount> taken;
    std::transform(spaces->begin(), spaces->end(), taken.begin(),
                   [](const RegisterSlots& slots) { return SlotRuns(slots); });
    snapshot = std::move(taken);
}

bool RegisterMap::isModified() const
{
    return !std::equal(spaces->begin(), spaces->end(), snapshot.begin(),
                       [](const RegisterSlots& slots, const SlotRuns& saved) { return saved.match(slots); });
}
