#pragma once

#include "source/TagTable.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Holds tags back and enters them into a table many at a time, which is much faster than one by one.
class TagBatch
{
public:
    /// Takes one tag; now and then the batch is entered.
    /// @param tag  its name and description are replaced by the given texts
    void add(const TagRecord& tag, std::string_view name, std::string_view description, TagTable& table);

    /// Enters what is held back, in the order in which it was taken.
    void flush(TagTable& table);

    /// Forgets what is held back.
    void clear();

private:
    void hold(std::string_view text);

    std::vector<TagRecord> tags;
    std::string texts;                ///< name and description of each tag in a row
    std::vector<std::size_t> lengths; ///< of these
};
