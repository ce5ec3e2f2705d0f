#pragma once

#include "memory/FetchAhead.h"
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

    /// Has the place of a name fetched, which lies anywhere in half a megabyte. Asked for some names before their
    /// records are appended, this saves 2 of 26 ms on 65,536 tags.
    void prepare(InternedText name) const
    {
        if (!firstByName.empty())
            fetchAhead(&firstByName[hashOf(name) % slotCount]);
    }

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

    static std::size_t hashOf(InternedText name) { return std::hash<InternedText>{}(name); }

    /// What is entered for a record: its index, of which there are 65,536, and above it a part of the name's hash that
    /// the slot does not tell. So a search looks at hardly any record but the right one.
    static constexpr std::int32_t entryOf(std::size_t hash, std::int32_t index)
    {
        constexpr std::size_t differentParts = 1U << 15U;
        return static_cast<std::int32_t>(hash / slotCount % differentParts) << 16 | index;
    }

    static constexpr std::int32_t indexIn(std::int32_t entry) { return entry & 0xFFFF; }

    /// Where the name's record is entered, or the free slot where it would be.
    /// @param hash  of the name
    std::size_t slotOf(InternedText name, std::size_t hash) const;

    static const TagRecord unusedRecord;

    std::vector<TagRecord, LargePageAllocator<TagRecord>> records; ///< all of them, or none before the first tag
    int filled = 0;
    std::vector<std::int32_t> firstByName; ///< open-addressing table of entries; empty with `records`
};

// Validation looks a name up for each of up to 262,144 slots: the search stands here so that it can be inlined.

inline std::size_t TagTable::slotOf(InternedText name, std::size_t hash) const
{
    const auto isOfName = [&](std::int32_t entry)
    {
        const std::int32_t index = indexIn(entry);
        return entry == entryOf(hash, index) && records[static_cast<std::size_t>(index)].name == name;
    };
    std::size_t slot = hash % slotCount;
    while (firstByName[slot] != freeSlot && !isOfName(firstByName[slot]))
        slot = (slot + 1) % slotCount;
    return slot;
}

inline std::optional<int> TagTable::find(InternedText name) const
{
    const std::int32_t entry = firstByName.empty() ? freeSlot : firstByName[slotOf(name, hashOf(name))];
    if (entry != freeSlot)
        return indexIn(entry);
    if (name.empty() && filled < tagCapacity)
        return filled;
    return std::nullopt;
}
