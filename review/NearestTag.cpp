#include "review/NearestTag.h"

#include "text/Characters.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <string>

namespace
{

/// Names that are longer are no slips of each other that anybody could see.
constexpr std::size_t longestName = 255;

constexpr int mostSlips = 3;

/// Comparing two names in full takes so much longer than seeing that their characters differ too much.
constexpr int stepsOfComparison = 32;

/// True without regard to capitals.
bool sameLetter(char one, char other)
{
    return lowerCase(one) == lowerCase(other);
}

int slipsAllowed(std::string_view name)
{
    constexpr int charactersPerSlip = 4;
    return std::clamp(static_cast<int>(name.size()) / charactersPerSlip, 1, mostSlips);
}

/// One bit for each character that occurs, 64 kinds of them, without regard to capitals.
std::uint64_t lettersOf(std::string_view name)
{
    constexpr unsigned kinds = 64;
    std::uint64_t letters = 0;
    for (const char c : name)
        letters |= std::uint64_t{1} << (static_cast<unsigned char>(lowerCase(c)) % kinds);
    return letters;
}

/// True when more than `count` bits are set; quicker than counting them where the processor's own count is not used.
bool hasMoreThan(std::uint64_t bits, int count)
{
    for (; count > 0; --count)
        bits &= bits - 1;
    return bits != 0;
}

/// True when it takes more slips to make one set of characters of the other: each brings one and takes one at most.
bool farApart(std::uint64_t one, std::uint64_t other, int slips)
{
    return hasMoreThan(one & ~other, slips) || hasMoreThan(other & ~one, slips);
}

void stripCommonEnds(std::string_view& one, std::string_view& other)
{
    const auto front =
        std::mismatch(one.begin(), one.end(), other.begin(), other.end(), sameLetter).first - one.begin();
    one.remove_prefix(static_cast<std::size_t>(front));
    other.remove_prefix(static_cast<std::size_t>(front));
    const auto back =
        std::mismatch(one.rbegin(), one.rend(), other.rbegin(), other.rend(), sameLetter).first - one.rbegin();
    one.remove_suffix(static_cast<std::size_t>(back));
    other.remove_suffix(static_cast<std::size_t>(back));
}

/// Slips for the first characters of one text against each number of first characters of the other, and one place more.
using SlipRow = std::array<int, longestName + 2>;

/// Counts slips row by row, one for each number of first characters of one text. More slips than the limit need not be
/// told apart, and beyond so many places to the left and right of the diagonal there are always more: only the band
/// between is filled, with "too many" at its ends.
class SlipBand
{
public:
    SlipBand(std::string_view oneText, std::string_view otherText, int slipLimit)
        : one(oneText), other(otherText), limit(static_cast<std::size_t>(slipLimit)), tooMany(slipLimit + 1)
    {
        const std::size_t end = std::min(limit, other.size());
        std::iota(rows[0].begin(), rows[0].begin() + static_cast<std::ptrdiff_t>(end) + 1, 0);
        rows[0][end + 1] = tooMany;
    }

    int count()
    {
        for (std::size_t i = 1; i <= one.size(); ++i)
        {
            if (fillRow(i) >= tooMany)
                return tooMany;
        }
        return std::min(rows[one.size() % rows.size()][other.size()], tooMany);
    }

private:
    /// Fills the next row from the last two; all characters count here, common ends are gone.
    /// @return its least number
    int fillRow(std::size_t i)
    {
        SlipRow& row = rows[i % rows.size()];
        const std::size_t begin = i > limit ? i - limit : 1;
        const std::size_t end = std::min(i + limit, other.size());
        row[begin - 1] = begin == 1 ? static_cast<int>(i) : tooMany;
        int least = row[begin - 1];
        for (std::size_t j = begin; j <= end; ++j)
        {
            row[j] = slipsAt(i, j);
            least = std::min(least, row[j]);
        }
        row[end + 1] = tooMany;
        return least;
    }

    int slipsAt(std::size_t i, std::size_t j) const
    {
        const SlipRow& last = rows[(i - 1) % rows.size()];
        const int changed = last[j - 1] + (same(i, j) ? 0 : 1);
        const int oneMoreOrLess = std::min(last[j], rows[i % rows.size()][j - 1]) + 1;
        const bool exchanged = i > 1 && j > 1 && same(i, j - 1) && same(i - 1, j);
        const int least = std::min(changed, oneMoreOrLess);
        return exchanged ? std::min(least, rows[(i - 2) % rows.size()][j - 2] + 1) : least;
    }

    bool same(std::size_t i, std::size_t j) const { return sameLetter(one[i - 1], other[j - 1]); }

    std::string_view one;
    std::string_view other;
    std::size_t limit;
    int tooMany;
    std::array<SlipRow, 3> rows; ///< row i at i modulo 3
};

} // namespace

int slipsBetween(std::string_view one, std::string_view other, int limit)
{
    stripCommonEnds(one, other);
    const std::size_t longer = std::max(one.size(), other.size());
    if (longer > longestName || longer - std::min(one.size(), other.size()) > static_cast<std::size_t>(limit))
        return limit + 1;
    return SlipBand(one, other, limit).count();
}

bool differInDigitsOnly(std::string_view one, std::string_view other)
{
    if (std::ranges::equal(one, other, sameLetter))
        return false;
    const auto withoutDigits = [](std::string_view name)
    {
        std::string rest(name);
        std::erase_if(rest, isDigit);
        return rest;
    };
    return std::ranges::equal(withoutDigits(one), withoutDigits(other), sameLetter);
}

NearestTag::Near NearestTag::compare(std::string_view name, std::uint64_t letters, const Candidate& candidate,
                                     int limit)
{
    if (farApart(letters, candidate.letters, limit))
        return {limit + 1, candidate.index};
    work += stepsOfComparison;
    const int slips = slipsBetween(name, candidate.name, limit);
    const bool isOtherDevice = slips <= limit && differInDigitsOnly(name, candidate.name);
    return {isOtherDevice ? limit + 1 : slips, candidate.index};
}

void NearestTag::sortTags()
{
    byLength.resize(longestName + 1);
    for (int index = 0; index < tags.count(); ++index)
    {
        const std::string_view name = tags[index].name.view();
        if (name.size() <= longestName)
            byLength[name.size()].push_back({lettersOf(name), name, index});
    }
}

std::optional<int> NearestTag::find(std::string_view name)
{
    if (byLength.empty())
        sortTags();
    const int allowed = slipsAllowed(name);
    const auto length = static_cast<int>(name.size());
    const std::uint64_t letters = lettersOf(name);
    Near nearest{allowed + 1, tagCapacity};
    for (int other = std::max(length - allowed, 1); other <= std::min<int>(length + allowed, longestName); ++other)
    {
        const auto& candidates = byLength[static_cast<std::size_t>(other)];
        work += static_cast<std::int64_t>(candidates.size());
        if (isSpent())
            return std::nullopt;
        for (const Candidate& candidate : candidates)
            nearest = std::min(nearest, compare(name, letters, candidate, nearest.slips));
    }
    return nearest.slips <= allowed ? std::optional(nearest.index) : std::nullopt;
}
