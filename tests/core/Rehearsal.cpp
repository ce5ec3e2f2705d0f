#include "tests/core/Rehearsal.h"

#include "map/ErrorPurge.h"
#include "map/Locks.h"
#include "map/RegisterEdit.h"
#include "map/Selection.h"
#include "map/TagnameReplace.h"
#include "tests/core/MapBuilder.h"

#include <algorithm>
#include <cstring>
#include <limits>

void Rehearsal::begin(Chance forMap, Chance forCommands)
{
    chance = forMap;
    clearBoth();
    constexpr int middle = registersPerSpace / 2;
    stretch = chance.oneOf<Stretch>({{0, 90},
                                     {0, 250},
                                     {middle, 120},
                                     {middle, 300},
                                     {registersPerSpace - 136, 136},
                                     {registersPerSpace - 266, 266}});
    for (int space = 0; space < spaceCount; ++space)
    {
        if (space == 3 || chance.happens(40))
            fillSpace(space);
    }
    chance = forCommands;
}

std::string Rehearsal::step()
{
    locks = LockedSlots::MayChange;
    switch (chance.pick(0, 12))
    {
    case 0:
        return copyOrErase();
    case 1:
    case 2:
        return paste();
    case 3:
        return append();
    case 4:
    case 5:
    case 6:
    case 7:
        return moveSome();
    case 8:
        return compress();
    case 9:
        return toggle();
    case 10:
        return replace();
    case 11:
        return edit();
    default:
        return chance.happens(15) ? purge() : changeSpace();
    }
}

void Rehearsal::clearBoth()
{
    for (int space = 0; space < spaceCount; ++space)
    {
        for (int page = 0; page < LiteralModel::pagesPerSpace; ++page)
        {
            if (model.isTouched(space, page))
                clearSlots(slotsOf(space), page * LiteralModel::pageLength, LiteralModel::pageLength);
        }
    }
    model.reset();
    map.clipboard.clear();
    map.currentSpace = RegisterSpace::Holding;
}

RegisterEntry Rehearsal::randomObject()
{
    RegisterEntry entry =
        registerOf(chance.oneOf({"AA", "AAB", "X1X", "PLC1_AAA", "", "a"}), chance.oneOf({1, 1, 1, 2, 2, 3, 4, 9}));
    entry.locked = chance.happens(8);
    entry.tagIndex = chance.happens(20) ? -1 : entry.tagIndex;
    entry.typeValid = !chance.happens(10);
    entry.writeValid = !chance.happens(10);
    return entry;
}

/// Objects and gaps, some of them torn by others, left without a head, vacated, locked in part or cut off.
void Rehearsal::fillSpace(int space)
{
    RegisterSlots& slots = slotsOf(space);
    for (int address = stretch.first; address <= stretch.last(); address += chance.pick(1, 6))
    {
        if (chance.happens(25))
            continue;
        const RegisterEntry entry = randomObject();
        place(slots, address, entry);
        if (chance.happens(70))
            address = std::min(address + static_cast<int>(entry.registerCount) - 1, lastAddress);
        if (chance.happens(30))
            --address;
    }
    for (int address = stretch.first; address <= stretch.last(); ++address)
        disturb(slots[address]);
    if (chance.happens(50))
        place(slots, lastAddress - chance.pick(0, 2), randomObject());
    for (int address = stretch.first; address <= std::min(stretch.last() + 20, lastAddress); ++address)
        model.set(space, address, slots[address]);
    for (int address = lastAddress - 10; address <= lastAddress; ++address)
        model.set(space, address, slots[address]);
}

void Rehearsal::disturb(RegisterEntry& slot)
{
    if (chance.happens(3))
        slot.locked = true;
    if (chance.happens(4))
        slot.used = false;
    if (chance.happens(2))
        slot = freeSlot(static_cast<int>(slot.address));
    if (chance.happens(1))
        slot.startAddress = chance.oneOf({slot.address - 3, slot.address + 2, 0xFFFFFFFEU});
    if (stretch.last() == lastAddress && chance.happens(1))
        slot.registerCount = chance.oneOf({70'000U, 0x7FFFFFFFU, 0xFFFFFFFFU});
}

int Rehearsal::randomAddress()
{
    if (chance.happens(2))
        return chance.oneOf({-1, registersPerSpace, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()});
    return std::min(chance.pick(stretch.first, stretch.last() + 10), lastAddress);
}

std::vector<int> Rehearsal::randomRows()
{
    std::vector<int> rows;
    const int first = randomAddress();
    const int count = chance.oneOf({0, 1, 1, 2, 5, 12, 40});
    rows.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        rows.push_back(chance.happens(80) && RegisterSlots::contains(first) ? std::min(first + i, lastAddress)
                                                                            : randomAddress());
    if (chance.happens(70))
        std::sort(rows.begin(), rows.end());
    return rows;
}

/// Mostly what a selection gives, sometimes any list.
std::vector<int> Rehearsal::randomAddresses()
{
    const std::vector<int> rows = randomRows();
    std::vector<int> addresses = collectSelection(map.currentSlots(), rows);
    if (addresses != model.collectSelection(rows))
        selectionDiffers = true;
    if (chance.happens(10))
        chance.shuffle(addresses);
    return chance.happens(15) ? rows : addresses;
}

std::string Rehearsal::copyOrErase()
{
    const std::vector<int> addresses = randomAddresses();
    switch (chance.pick(0, 2))
    {
    case 0:
        locks = LockedSlots::Stay;
        copyRegisters(map, addresses);
        model.copy(addresses);
        return verdict(true, "copy");
    case 1:
        cutRegisters(map, addresses);
        model.cut(addresses);
        return verdict(true, "cut");
    default:
        eraseRegisters(map, addresses);
        model.erase(addresses);
        return verdict(true, "delete");
    }
}

std::string Rehearsal::paste()
{
    const int row = randomAddress();
    locks = LockedSlots::Stay;
    const std::vector<RegisterEntry> clipboard = map.clipboard;
    const bool sameAnswer = pasteRegisters(map, row) == model.paste(row);
    return verdict(sameAnswer && map.clipboard == clipboard, "paste at " + std::to_string(row));
}

std::string Rehearsal::append()
{
    const int row = randomAddress();
    locks = LockedSlots::StayWhenUsed;
    const std::vector<RegisterEntry> clipboard = map.clipboard;
    const bool sameAnswer = appendRegisters(map, row) == model.append(row);
    return verdict(sameAnswer && map.clipboard == clipboard, "append at " + std::to_string(row));
}

std::string Rehearsal::moveSome()
{
    locks = LockedSlots::Stay;
    const std::vector<int> addresses = randomAddresses();
    const MoveDirection direction = chance.oneOf({MoveDirection::Up, MoveDirection::Down});
    const bool shoving = chance.happens(70);
    const MoveResult result = moveSlots(map.currentSlots(), addresses, direction, shoving);
    const MoveResult expected = model.moveSlots(addresses, direction, shoving);
    return verdict(result.positions == expected.positions && result.changed == expected.changed, "move");
}

std::string Rehearsal::compress()
{
    const std::vector<int> addresses = randomAddresses();
    return verdict(compressRegisters(map.currentSlots(), addresses) == model.compress(addresses), "compress");
}

std::string Rehearsal::toggle()
{
    const std::vector<int> addresses = randomAddresses();
    toggleLocks(map.currentSlots(), addresses);
    model.toggleLocks(addresses);
    return verdict(true, "toggle");
}

std::string Rehearsal::replace()
{
    locks = LockedSlots::Stay;
    std::vector<int> rows = randomRows();
    // No grid reports a row twice, and a name is replaced once.
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    const char* find = chance.oneOf({"A", "AA", "X", "PLC1_", "", "none"});
    const char* replacement = chance.oneOf({"", "A", "XX", "PLC2_"});
    replaceInTagnames(map.currentSlots(), rows, find, replacement);
    model.replace(rows, find, replacement);
    return verdict(true, "replace");
}

std::string Rehearsal::edit()
{
    const int row = randomAddress();
    const std::optional<int> head = editedHead(map.currentSlots(), row);
    if (head != model.editedHead(row))
        return "edit: another head";
    if (!head)
        return "";
    RegisterEntry entry = registerOf("EDITED", chance.oneOf({1, 2, 4, 5}));
    entry.SwapWords = entry.SwapWords && entry.type != DataType::String;
    entry.tagIndex = -1;
    const bool sameEntry = editedEntry(map.currentSlots(), *head) == model.editedEntry(*head);
    applyEdit(map, *head,
              {.tagname = std::string(entry.tagname.view()),
               .description = std::string(entry.description.view()),
               .typeName = std::string(typeName(entry.type)),
               .SwapWords = entry.SwapWords,
               .registerCount = static_cast<std::int32_t>(entry.registerCount)});
    model.edit(*head, entry);
    return verdict(sameEntry, "edit of " + std::to_string(row));
}

std::string Rehearsal::purge()
{
    deleteErrorRegisters(map);
    model.purge();
    return verdict(true, "purge");
}

std::string Rehearsal::changeSpace()
{
    locks = LockedSlots::Stay;
    model.currentSpace = chance.pick(0, 3);
    map.currentSpace = static_cast<RegisterSpace>(model.currentSpace);
    return verdict(true, "change of space");
}

std::string Rehearsal::verdict(bool sameAnswer, const std::string& command) const
{
    if (!sameAnswer)
        return command + ": another answer";
    if (selectionDiffers)
        return command + ": another selection";
    if (map.clipboard != model.clipboard)
        return command + ": another clipboard";
    const std::string slot = difference(true);
    return slot.empty() ? "" : command + ": " + slot;
}

std::string Rehearsal::difference(bool touchedOnly) const
{
    for (int space = 0; space < spaceCount; ++space)
    {
        for (int page = 0; page < LiteralModel::pagesPerSpace; ++page)
        {
            if (touchedOnly && !model.isTouched(space, page))
                continue;
            const int first = page * LiteralModel::pageLength;
            const RegisterEntry* slots = &map.slots(static_cast<RegisterSpace>(space))[first];
            if (std::memcmp(slots, &model.at(space, first), LiteralModel::pageLength * sizeof *slots) == 0)
                continue;
            int address = first;
            while (map.slots(static_cast<RegisterSpace>(space))[address] == model.at(space, address))
                ++address;
            return "another slot " + std::to_string(address) + " in space " + std::to_string(space);
        }
    }
    return "";
}
