#include "map/Clipboard.h"

#include "map/Insertion.h"

#include <algorithm>
#include <optional>

// The clipboard holds registers, not objects: each is a full copy of its slot, lock and validation included. When it
// goes back only its place inside its object counts, `address` - `startAddress`; the address it once had does not. So a
// gap that was copied is pasted as a gap, a locked register as a locked one, and a part of an object as that part.

namespace
{

/// Where a paste on a row goes: a row in the middle of an object stands for the whole object, which must not be split.
std::optional<int> headOfObjectAt(const RegisterSlots& slots, int rowAddress)
{
    if (!RegisterSlots::contains(rowAddress))
        return std::nullopt;
    const RegisterEntry& slot = slots[rowAddress];
    // Unsigned on purpose: an object that begins before the space gives a number far outside it.
    const std::uint32_t head = static_cast<std::uint32_t>(rowAddress) + slot.startAddress - slot.address;
    if (!RegisterSlots::contains(head))
        return std::nullopt;
    return static_cast<int>(head);
}

/// True when `wanted` free slots lie from `target` on before the first locked slot.
bool hasRoom(const RegisterSlots& slots, int target, std::size_t wanted)
{
    // Used slots in between take no room: they are pushed down into the very slots that are counted here.
    std::size_t room = 0;
    for (int address = target; address <= lastAddress && !slots[address].locked && room < wanted; ++address)
    {
        if (!slots[address].used)
            ++room;
    }
    return room >= wanted;
}

/// @return 65536 when every slot from `address` on is used
int firstFreeSlotFrom(const RegisterSlots& slots, int address)
{
    while (address <= lastAddress && slots[address].used)
        ++address;
    return address;
}

} // namespace

void copyRegisters(RegisterMap& map, std::span<const int> addresses)
{
    // A command given without a selection must not cost the user what was copied before.
    if (addresses.empty())
        return;
    // Overlapping objects of a file can list the same registers over and over.
    const auto useful = addresses.first(std::min(addresses.size(), clipboardCapacity));
    map.clipboard.clear();
    map.clipboard.reserve(useful.size());
    for (const int address : useful)
    {
        if (RegisterSlots::contains(address))
            map.clipboard.push_back(map.currentSlots()[address]);
    }
}

void eraseRegisters(RegisterMap& map, std::span<const int> addresses)
{
    // The list names every register of an object. The head clears them all, and erasing the others, which are free by
    // then, changes nothing any more.
    for (const int address : addresses)
        map.eraseObject(map.currentSpace, address);
}

void cutRegisters(RegisterMap& map, std::span<const int> addresses)
{
    copyRegisters(map, addresses);
    eraseRegisters(map, addresses);
}

std::optional<int> insertionTarget(int shownRows, std::span<const int> selectedAddresses)
{
    if (!selectedAddresses.empty())
        return selectedAddresses.front();
    // A view without rows has nothing to select, and only one place to begin.
    return shownRows == 0 ? std::optional(0) : std::nullopt;
}

void insertClipboard(RegisterMap& map, int target)
{
    insertRegisters(map.currentSlots(), map.clipboard, target);
}

PasteResult pasteRegisters(RegisterMap& map, int rowAddress)
{
    if (map.clipboard.empty())
        return PasteResult::NothingToDo;
    const std::optional<int> target = headOfObjectAt(map.currentSlots(), rowAddress);
    if (!target)
        return PasteResult::NothingToDo;
    // All or nothing: counted before the first slot changes, because an object cut off by a lock is worth nothing.
    if (!hasRoom(map.currentSlots(), *target, map.clipboard.size()))
        return PasteResult::NoRoom;
    insertClipboard(map, *target);
    return PasteResult::Pasted;
}

bool appendRegisters(RegisterMap& map, int rowAddress)
{
    if (map.clipboard.empty() || !RegisterSlots::contains(rowAddress))
        return false;
    // Looks wrong and is required: the first free slot is taken even when it is locked, and what fits before the next
    // lock goes in without a word where a paste would have refused.
    const int target = firstFreeSlotFrom(map.currentSlots(), rowAddress);
    if (map.clipboard.size() > static_cast<std::size_t>(registersPerSpace - target))
        return false;
    insertClipboard(map, target);
    return true;
}
