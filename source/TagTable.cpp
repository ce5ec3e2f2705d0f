#include "source/TagTable.h"

TagTable::TagTable() : records(tagCapacity) {}

void TagTable::clear()
{
    records.assign(tagCapacity, TagRecord{});
    filled = 0;
    firstByName.clear();
}

bool TagTable::append(const TagRecord& record)
{
    if (filled == tagCapacity)
        return false;
    records[static_cast<std::size_t>(filled)] = record;
    firstByName.try_emplace(record.name, filled);
    ++filled;
    return true;
}

std::optional<int> TagTable::find(InternedText name) const
{
    const auto found = firstByName.find(name);
    if (found != firstByName.end())
        return found->second;
    if (name.empty() && filled < tagCapacity)
        return filled;
    return std::nullopt;
}
