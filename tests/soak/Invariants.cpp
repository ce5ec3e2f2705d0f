#include "tests/soak/Invariants.h"

#include "map/MapView.h"
#include "map/Validation.h"
#include "ui/ToolkitText.h"

#include <wx/grid.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace
{

std::string place(RegisterSpace space, int address)
{
    return std::string(spaceKeyword(space)) + ' ' + std::to_string(address);
}

/// A slot as the user made it: the marks follow from the tag database.
RegisterEntry withoutMarks(RegisterEntry slot)
{
    slot.tagIndex = -1;
    slot.typeValid = true;
    slot.writeValid = true;
    return slot;
}

bool sameButMarks(const RegisterEntry& left, const RegisterEntry& right)
{
    return left == right || withoutMarks(left) == withoutMarks(right);
}

bool sameButLock(RegisterEntry left, const RegisterEntry& right)
{
    left.locked = right.locked;
    return sameButMarks(left, right);
}

/// Finds the registers that an unlocked object counts as its own, whoever's they are: with the object they go. Told of
/// the slots of a space one after another.
class Claims
{
public:
    bool claims(int address, const RegisterEntry& slot)
    {
        // The editor takes what stands at address 0 for a head.
        if (slot.used && !slot.locked && (isHead(slot) || address == 0))
            end = std::max(end, std::int64_t{address} + slot.registerCount);
        return address < end;
    }

private:
    std::int64_t end = 0;
};

std::string misplacedSlot(const RegisterMap& map)
{
    for (const RegisterSpace space : allSpaces)
    {
        const RegisterSlots& slots = map.slots(space);
        for (int address = 0; address < RegisterSlots::size(); ++address)
        {
            if (slots[address].address != static_cast<std::uint32_t>(address))
                return place(space, address) + " says that it is at " + std::to_string(slots[address].address);
        }
    }
    return "";
}

std::string wrongWindow(const RegisterMap& map, const WorkedFrame& frame)
{
    const std::string expected = statusText(countErrors(map));
    const std::string shown = modelText(frame.statusText());
    if (shown != expected)
        return "the status line says \"" + shown + "\" instead of \"" + expected + '"';
    const auto rows = static_cast<int>(shownAddresses(map.currentSlots(), map.viewMode).size());
    if (frame.mapRows().GetNumberRows() != rows)
        return "the list has " + std::to_string(frame.mapRows().GetNumberRows()) + " rows instead of " +
               std::to_string(rows);
    return "";
}

} // namespace

Invariants::Invariants() : before(std::make_unique<std::array<RegisterSlots, spaceCount>>()) {}

void Invariants::remember(const RegisterMap& map)
{
    for (const RegisterSpace space : allSpaces)
        (*before)[static_cast<std::size_t>(space)] = map.slots(space);
    spaceBefore = map.currentSpace;
}

std::string Invariants::broken(const RegisterMap& map, const WorkedFrame& frame, MayChange mayChange) const
{
    std::string found = misplacedSlot(map);
    for (const RegisterSpace space : allSpaces)
    {
        const bool shown = space == spaceBefore;
        if (!found.empty() || (!shown && mayChange == MayChange::AllSpaces))
            continue;
        found = changedWrongly(map, space, shown ? mayChange : MayChange::Nothing);
    }
    return found.empty() ? wrongWindow(map, frame) : found;
}

std::string Invariants::changedWrongly(const RegisterMap& map, RegisterSpace space, MayChange mayChange) const
{
    Claims unlockedObjects;
    for (int address = 0; address < RegisterSlots::size(); ++address)
    {
        const RegisterEntry& old = slotsBefore(space)[address];
        const RegisterEntry& now = map.slots(space)[address];
        const bool claimed = unlockedObjects.claims(address, old);
        if (sameButMarks(old, now) || (mayChange == MayChange::Locks && sameButLock(old, now)))
            continue;
        if (mayChange == MayChange::Nothing || mayChange == MayChange::Locks)
            return place(space, address) + " has changed";
        const bool held = old.used && old.locked && (mayChange == MayChange::Unlocked || !claimed);
        if (held)
            return place(space, address) + " was locked and has changed";
    }
    return "";
}
