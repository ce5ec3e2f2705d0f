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
    const auto same = [](char a, char b) { return lowerCase(a) == lowerCase(b); };
    const auto front = std::mismatch(one.begin(), one.end(), other.begin(), other.end(), same).first - one.begin();
    one.remove_prefix(static_cast<std::size_t>(front));
    other.remove_prefix(static_cast<std::size_t>(front));
    const auto back = std::mismatch(one.rbegin(), one.rend(), other.rbegin(), other.rend(), same).first - one.rbegin();
    one.remove_suffix(static_cast<std::size_t>(back));
    other.remove_suffix(static_cast<std::size_t>(back));
}

/// Slips for the first characters of one text against each number of first characters of the other.
using SlipRow = std::array<int, longestName + 1>;

/// The next row from the last two; all characters count here, common ends are gone.
void fillRow(SlipRow& row, const std::array<const SlipRow*, 2>& before, std::string_view one, std::string_view other,
             std::size_t i)
{
    const SlipRow& last = *before[0];
    row[0] = static_cast<int>(i);
    for (std::size_t j = 1; j <= other.size(); ++j)
    {
        const bool same = lowerCase(one[i - 1]) == lowerCase(other[j - 1]);
        row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (same ? 0 : 1)});
        if (i > 1 && j > 1 && lowerCase(one[i - 1]) == lowerCase(other[j - 2]) &&
            lowerCase(one[i - 2]) == lowerCase(other[j - 1]))
            row[j] = std::min(row[j], (*before[1])[j - 2] + 1);
    }
}

} // namespace

int slipsBetween(std::string_view one, std::string_view other, int limit)
{
    stripCommonEnds(one, other);
    const std::size_t longer = std::max(one.size(), other.size());
    if (longer > longestName || longer - std::min(one.size(), other.size()) > static_cast<std::size_t>(limit))
        return limit + 1;
    std::array<SlipRow, 3> rows;
    std::iota(rows[0].begin(), rows[0].begin() + static_cast<std::ptrdiff_t>(other.size()) + 1, 0);
    for (std::size_t i = 1; i <= one.size(); ++i)
    {
        SlipRow& row = rows[i % rows.size()];
        fillRow(row, {&rows[(i + 2) % rows.size()], &rows[(i + 1) % rows.size()]}, one, other, i);
        const auto end = row.begin() + static_cast<std::ptrdiff_t>(other.size()) + 1;
        if (*std::min_element(row.begin(), end) > limit)
            return limit + 1;
    }
    return std::min(rows[one.size() % rows.size()][other.size()], limit + 1);
}

bool differInDigitsOnly(std::string_view one, std::string_view other)
{
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto same = [](char a, char b) { return lowerCase(a) == lowerCase(b); };
    if (std::ranges::equal(one, other, same))
        return false;
    const auto withoutDigits = [&](std::string_view name)
    {
        std::string rest(name);
        std::erase_if(rest, isDigit);
        return rest;
    };
    return std::ranges::equal(withoutDigits(one), withoutDigits(other), same);
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
