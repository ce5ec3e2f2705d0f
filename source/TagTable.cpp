#include "source/TagTable.h"

#include <algorithm>

TagTable::TagTable() : records(tagCapacity), firstByName(slotCount, freeSlot) {}

void TagTable::clear()
{
    std::fill_n(records.begin(), filled, TagRecord{});
    filled = 0;
    std::ranges::fill(firstByName, freeSlot);
}

bool TagTable::append(const TagRecord& record)
{
    if (filled == tagCapacity)
        return false;
    std::int32_t& slot = firstByName[slotOf(record.name)];
    if (slot == freeSlot)
        slot = filled;
    records[static_cast<std::size_t>(filled)] = record;
    ++filled;
    return true;
}
