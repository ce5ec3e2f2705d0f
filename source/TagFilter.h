#pragma once

#include "source/TagTable.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What the user narrows the list of tags by.
struct TagFilter
{
    std::string prefix; ///< beginning of the names, letter case counts; empty for all tags
    std::string text;   ///< piece of name or description in any letter case, "*" and "?" are wildcards
    std::vector<std::uint32_t> checkedMasks; ///< masks of the checked groups; a tag has to belong to each of them
};

/// Names and descriptions of all tags in upper case, in one piece of memory, for searching. Built once after loading.
class TagSearchIndex
{
public:
    /// An index of no tags.
    TagSearchIndex() = default;

    /// The index of the filled records of a table.
    explicit TagSearchIndex(const TagTable& tags);

    /// Upper-cased name.
    /// @param tag  index in the table, below the number of tags that the index was built from
    std::string_view name(int tag) const { return text(2 * static_cast<std::size_t>(tag)); }

    /// Upper-cased description.
    std::string_view description(int tag) const { return text(2 * static_cast<std::size_t>(tag) + 1); }

    /// Everything in a row, a byte that is no part of any UTF-8 text behind each name and each description.
    std::string_view allTexts() const { return texts; }

    /// Where the tag's name begins in `allTexts`; its description follows.
    /// @param tag  up to the number of tags, for which it gives the end of `allTexts`
    std::size_t startOf(int tag) const { return starts[2 * static_cast<std::size_t>(tag)]; }

private:
    std::string_view text(std::size_t index) const;
    void append(std::string_view text);

    std::string texts;
    std::vector<std::size_t> starts{0}; ///< of each text, and the end of the last one
};

/// The tags that a filter lets through.
///
/// A tag is shown when its name begins with the prefix, its name or its description holds the text, and it has a bit
/// in common with each checked mask; a checked mask of 0 hides every tag.
/// @param index  built from `tags`
/// @return indices in the tag table, ascending
std::vector<int> filterTags(const TagTable& tags, const TagSearchIndex& index, const TagFilter& filter);
