#include "source/TagFilter.h"

#include "text/UpperCase.h"
#include "text/Wildcard.h"

#include <algorithm>

namespace
{

/// A mask without bits has none in common with any tag, so checking its group hides all of them.
bool belongsToAll(const TagRecord& tag, const std::vector<std::uint32_t>& masks)
{
    return std::ranges::all_of(masks, [&tag](std::uint32_t mask) { return (tag.groups & mask) != 0; });
}

} // namespace

TagSearchIndex::TagSearchIndex(const TagTable& tags)
{
    // Capitals are hardly ever longer than their letters, so the sum of the lengths is room enough to begin with.
    std::size_t length = 0;
    for (int tag = 0; tag < tags.count(); ++tag)
        length += tags[tag].name.view().size() + tags[tag].description.view().size();
    texts.reserve(length);
    ends.reserve(2 * static_cast<std::size_t>(tags.count()) + 1);
    for (int tag = 0; tag < tags.count(); ++tag)
    {
        append(tags[tag].name.view());
        append(tags[tag].description.view());
    }
}

void TagSearchIndex::append(std::string_view text)
{
    appendUpperCase(texts, text);
    ends.push_back(texts.size());
}

std::string_view TagSearchIndex::text(std::size_t index) const
{
    return std::string_view(texts).substr(ends[index], ends[index + 1] - ends[index]);
}

std::vector<int> filterTags(const TagTable& tags, std::optional<TagSearchIndex>& index, const TagFilter& filter)
{
    const bool anyText = filter.text.empty();
    if (!anyText && !index)
        index.emplace(tags);
    // The stars around it make it a search for a piece of the text. No letter has "*" or "?" for its capital: what was
    // typed as a wildcard is one, and nothing else is.
    const std::string pattern = toUpperCase("*" + filter.text + "*");
    std::vector<int> shown;
    for (int tag = 0; tag < tags.count(); ++tag)
    {
        const TagRecord& record = tags[tag];
        // The prefix comes from the tree, not from a keyboard: its letter case counts. The searches come last, as they
        // take the most time and need not be made for a tag that another part of the filter hides.
        if (record.name.view().starts_with(filter.prefix) && belongsToAll(record, filter.checkedMasks) &&
            (anyText || matchesWildcard(pattern, index->name(tag)) ||
             matchesWildcard(pattern, index->description(tag))))
            shown.push_back(tag);
    }
    return shown;
}
