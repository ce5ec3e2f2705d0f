#include "source/TagTable.h"

TagTable::TagTable() : records(tagCapacity), firstByName(slotCount, freeSlot) {}

void TagTable::clear()
{
    // Names go in the reverse of the order in which they came, so each is still found on its way through the table.
    // What this costs goes with the number of tags: a file may repeat its list of tags a million times.
    while (filled > 0)
    {
        --filled;
        TagRecord& record = records[static_cast<std::size_t>(filled)];
        std::int32_t& slot = firstByName[slotOf(record.name)];
        if (slot == filled)
            slot = freeSlot;
        record = {};
    }
}

bool TagTable::append(const TagRecord& record)
{
    if (filled == tagCapacity)
        return false;
    // Among equal names the first one counts, so a name that is there keeps its record.
    std::int32_t& slot = firstByName[slotOf(record.name)];
    if (slot == freeSlot)
        slot = filled;
    records[static_cast<std::size_t>(filled)] = record;
    ++filled;
    return true;
}
