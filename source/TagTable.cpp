#include "source/TagTable.h"

#include <algorithm>
#include <functional>

namespace
{

/// Twice the capacity, so that a search is short and always meets a free slot; a power of two.
constexpr std::size_t slotCount = 2 * static_cast<std::size_t>(tagCapacity);
constexpr std::int32_t freeSlot = -1;

} // namespace

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

std::optional<int> TagTable::find(InternedText name) const
{
    const std::int32_t index = firstByName[slotOf(name)];
    if (index != freeSlot)
        return index;
    if (name.empty() && filled < tagCapacity)
        return filled;
    return std::nullopt;
}

/// Where the name's record is entered, or the free slot where it would be.
std::size_t TagTable::slotOf(InternedText name) const
{
    std::size_t slot = std::hash<InternedText>{}(name) & (slotCount - 1);
    while (firstByName[slot] != freeSlot && records[static_cast<std::size_t>(firstByName[slot])].name != name)
        slot = (slot + 1) & (slotCount - 1);
    return slot;
}
