#pragma once

#include "source/TagRecord.h"
#include "text/InternedText.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

/// Records in the tag table; a database holds at most so many tags.
constexpr int tagCapacity = 65536;

/// The table of database tags: 65,536 records, of which the first `count` are filled.
///
/// Records behind the filled ones are unused and have the empty name, so the empty name finds the first of them.
class TagTable
{
public:
    /// A table without tags.
    TagTable();

    /// Number of filled records, 0..65536.
    int count() const { return filled; }

    /// A record, filled or not.
    /// @param index  0..65535
    const TagRecord& operator[](int index) const { return records[static_cast<std::size_t>(index)]; }

    /// Forgets every tag.
    void clear();

    /// Fills the next record; a full table takes no more.
    /// @return false when the table is full and the tag was left out
    bool append(const TagRecord& record);

    /// Index of the first record of exactly that name, unused records included.
    /// @return 0..65535, or nothing when no record has the name
    std::optional<int> find(InternedText name) const;

private:
    std::size_t slotOf(InternedText name) const;

    std::vector<TagRecord> records;
    int filled = 0;
    std::vector<std::int32_t> firstByName; ///< open-addressing table of record indices
};
