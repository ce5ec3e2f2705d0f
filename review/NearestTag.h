#pragma once

#include "source/TagTable.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// Finds the tag name that somebody may have meant.
///
/// The nearest name is the one with the fewest slips: a character too many, too few or another, or two neighbours
/// exchanged. Capital and small letters count as the same; among equally near names the one that comes first in the
/// database counts. A name that differs in digits only is none: it is that of another device. One slip is allowed for
/// each four characters, one at least and three at most.
///
/// Suggestions are for slips of the pen. When hardly any name is known, the database is another one and no suggestion
/// helps: after `workLimit` steps in all, which take 5 to 20 ms, there are none any more.
class NearestTag
{
public:
    /// @param table  has to last as long as the object
    explicit NearestTag(const TagTable& table) : tags(table) {}

    /// The name nearest to an unknown one.
    /// @return the index of its tag; nothing when no name is near enough or the comparisons are used up
    std::optional<int> find(std::string_view name);

    /// True once no search is made any more.
    bool isSpent() const { return work > workLimit; }

    /// Steps in all: one for each name of about the same length, many for each of them that has about the same
    /// characters and is compared in full. It is enough for some dozen unknown names with the largest database, and for
    /// thousands with one of some hundred tags.
    static constexpr std::int64_t workLimit = std::int64_t{50} * tagCapacity;

private:
    struct Candidate
    {
        std::uint64_t letters = 0; ///< which characters the name holds
        std::string_view name;
        int index = 0;
    };

    /// How near a tag's name is; the lesser of two is the nearer one.
    struct Near
    {
        int slips = 0;
        int index = 0;

        friend bool operator<(const Near& one, const Near& other)
        {
            return one.slips != other.slips ? one.slips < other.slips : one.index < other.index;
        }
    };

    void sortTags();
    Near compare(std::string_view name, std::uint64_t letters, const Candidate& candidate, int limit);

    const TagTable& tags;
    std::vector<std::vector<Candidate>> byLength; ///< made when first asked
    std::int64_t work = 0;
};

/// True for names that are the same but for their digits, such as those of the third pump and the first.
bool differInDigitsOnly(std::string_view one, std::string_view other);

/// The fewest slips that make one text of another, as far as they are no more than `limit`.
/// @return 0..limit, or limit + 1 for any more
int slipsBetween(std::string_view one, std::string_view other, int limit);
