#include "source/TagTable.h"

// Names are found by open addressing: each name belongs into the slot that its hash says, or into the next free one.
//
//   slot of firstByName   ...  17    18    19    20  ...
//   record                      -     4     9     -         records 4 and 9 have hashes that lead to slot 18
//
// A search goes on until it meets the name or a free slot. With half of the slots free at least, that is one or two
// steps. Only the first record of a name is entered; later ones can be reached by their index alone.

const TagRecord TagTable::unusedRecord{};

void TagTable::clear()
{
    // Names go in the reverse of the order in which they came, so each is still found on its way through the table.
    // What this costs goes with the number of tags: a file may repeat its list of tags a million times.
    while (filled > 0)
    {
        --filled;
        TagRecord& record = records[static_cast<std::size_t>(filled)];
        std::int32_t& slot = firstByName[slotOf(record.name, hashOf(record.name))];
        if (slot != freeSlot && indexIn(slot) == filled)
            slot = freeSlot;
        record = {};
    }
}

bool TagTable::append(const TagRecord& record)
{
    if (filled == tagCapacity)
        return false;
    if (firstByName.empty())
    {
        records.resize(tagCapacity);
        firstByName.assign(slotCount, freeSlot);
    }
    // Among equal names the first one counts, so a name that is there keeps its record.
    const std::size_t hash = hashOf(record.name);
    std::int32_t& slot = firstByName[slotOf(record.name, hash)];
    if (slot == freeSlot)
        slot = entryOf(hash, filled);
    records[static_cast<std::size_t>(filled)] = record;
    ++filled;
    return true;
}
