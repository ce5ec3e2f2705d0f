#include "source/TagFilter.h"

#include "text/FindBytes.h"
#include "text/UpperCase.h"
#include "text/Wildcard.h"

#include <algorithm>

namespace
{

/// Ends each text, so that no match spans two of them.
constexpr char separator = '\xFF';

/// Tests tags, asked for in ascending order, for a pattern that floats freely in name or description.
///
/// Instead of tag by tag, the texts of all tags are searched in one go for a piece that each match holds.
class TextMatch
{
public:
    TextMatch(const TagSearchIndex& searched, const WildcardPattern& wanted)
        : index(searched), pattern(wanted), matchesAll(wanted.isContainment() && wanted.longestPiece().empty())
    {
    }

    bool operator()(int tag)
    {
        return matchesAll || (holdsPiece(tag) && (pattern.isContainment() || pattern.matches(index.name(tag)) ||
                                                  pattern.matches(index.description(tag))));
    }

private:
    bool holdsPiece(int tag)
    {
        const std::size_t start = index.startOf(tag);
        if (occurrence < start || !searchedOnce)
            occurrence = findBytes(index.allTexts(), pattern.longestPiece(), start);
        searchedOnce = true;
        return occurrence < index.startOf(tag + 1);
    }

    const TagSearchIndex& index;
    const WildcardPattern& pattern;
    const bool matchesAll;
    bool searchedOnce = false;
    std::size_t occurrence = 0; ///< of the piece, at or behind the last tag asked for; npos when there is none
};

bool belongsToAll(const TagRecord& tag, const std::vector<std::uint32_t>& masks)
{
    return std::ranges::all_of(masks, [&tag](std::uint32_t mask) { return (tag.groups & mask) != 0; });
}

} // namespace

TagSearchIndex::TagSearchIndex(const TagTable& tags)
{
    std::size_t length = 0;
    for (int tag = 0; tag < tags.count(); ++tag)
        length += tags[tag].name.view().size() + tags[tag].description.view().size() + 2;
    texts.reserve(length);
    starts.reserve(2 * static_cast<std::size_t>(tags.count()) + 1);
    for (int tag = 0; tag < tags.count(); ++tag)
    {
        append(tags[tag].name.view());
        append(tags[tag].description.view());
    }
}

std::string_view TagSearchIndex::text(std::size_t index) const
{
    return std::string_view(texts).substr(starts[index], starts[index + 1] - starts[index] - 1);
}

void TagSearchIndex::append(std::string_view text)
{
    appendUpperCase(texts, text);
    texts += separator;
    starts.push_back(texts.size());
}

std::vector<int> filterTags(const TagTable& tags, const TagSearchIndex& index, const TagFilter& filter)
{
    const WildcardPattern pattern(toUpperCase("*" + filter.text + "*"));
    TextMatch textMatches(index, pattern);
    std::vector<int> shown;
    for (int tag = 0; tag < tags.count(); ++tag)
    {
        const TagRecord& record = tags[tag];
        if (!filter.prefix.empty() && !record.name.view().starts_with(filter.prefix))
            continue;
        if (belongsToAll(record, filter.checkedMasks) && textMatches(tag))
            shown.push_back(tag);
    }
    return shown;
}
