#pragma once

#include "memory/LargePages.h"
#include "source/TagRecord.h"
#include "text/InternedText.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

/// Records in the tag table; a database holds at most so many tags.
#ifndef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
constexpr int tagCapacity = 65536;
#else
// A fuzzer makes the table anew for each of its inputs, and its short inputs are to fill it.
constexpr int tagCapacity = 64;
#endif

/// The table of database tags: 65,536 records, of which the first `count` are filled.
///
/// Records after the filled ones are unused and have the empty name, so the empty name finds the first of them.
class TagTable
{
public:
    /// A table without tags, which takes no memory before the first one comes.
    TagTable() = default;

    /// Number of filled records, 0..65536.
    int count() const { return filled; }

    /// A record, filled or not.
    /// @param index  0..65535
    const TagRecord& operator[](int index) const
    {
        return records.empty() ? unusedRecord : records[static_cast<std::size_t>(index)];
    }

    /// Forgets every tag.
    void clear();

    /// Fills the next record; a full table takes no more.
    /// @return false when the table is full and the tag was left out
    bool append(const TagRecord& record);

    /// Index of the first record of exactly that name, unused records included.
    /// @return 0..65535, or nothing when no record has the name
    std::optional<int> find(InternedText name) const;

private:
    /// Twice the capacity, so that a search is short and always meets a free slot; a power of two.
    static constexpr std::size_t slotCount = 2 * static_cast<std::size_t>(tagCapacity);
    static constexpr std::int32_t freeSlot = -1;

    /// Where the name's record is entered, or the free slot where it would be.
    std::size_t slotOf(InternedText name) const;

    static const TagRecord unusedRecord;

    std::vector<TagRecord, LargePageAllocator<TagRecord>> records; ///< all of them, or none before the first tag
    int filled = 0;
    std::vector<std::int32_t> firstByName; ///< open-addressing table of record indices; empty with `records`
};

// Validation looks a name up for each of up to 262,144 slots: the search stands here so that it can be inlined.

inline std::size_t TagTable::slotOf(InternedText name) const
{
    std::size_t slot = std::hash<InternedText>{}(name) & (slotCount - 1);
    while (firstByName[slot] != freeSlot && records[static_cast<std::size_t>(firstByName[slot])].name != name)
        slot = (slot + 1) & (slotCount - 1);
    return slot;
}

inline std::optional<int> TagTable::find(InternedText name) const
{
    const std::int32_t index = firstByName.empty() ? freeSlot : firstByName[slotOf(name)];
    if (index != freeSlot)
        return index;
    if (name.empty() && filled < tagCapacity)
        return filled;
    return std::nullopt;
}
