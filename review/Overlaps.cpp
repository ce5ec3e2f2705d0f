#include "review/Overlaps.h"

#include "map/ByteOrderWords.h"
#include "text/Integers.h"

#include <algorithm>
#include <map>
#include <string>

namespace
{

/// Registers that one line takes from another.
struct Taken
{
    std::size_t from = 0; ///< index of the earlier line
    int first = 0;
    int end = 0;
};

/// The registers of a space as stretches, each owned by one line.
class OwnedStretches
{
public:
    /// Gives `first`..`end - 1` to a line.
    /// @return what other lines owned of it, ascending
    std::vector<Taken> take(std::size_t line, int first, int end)
    {
        splitAt(first);
        splitAt(end);
        std::vector<Taken> taken;
        const auto begin = stretches.lower_bound(first);
        auto stretch = begin;
        for (; stretch != stretches.end() && stretch->first < end; ++stretch)
            taken.push_back({stretch->second.line, stretch->first, stretch->second.end});
        stretches.erase(begin, stretch);
        stretches[first] = {end, line};
        return taken;
    }

private:
    struct Stretch
    {
        int end = 0;
        std::size_t line = 0;
    };

    /// Makes two of the stretch that an address lies inside.
    void splitAt(int address)
    {
        const auto after = stretches.upper_bound(address);
        if (after == stretches.begin())
            return;
        const auto stretch = std::prev(after);
        if (stretch->first == address || stretch->second.end <= address)
            return;
        const Stretch rest = stretch->second;
        stretch->second.end = address;
        stretches[address] = rest;
    }

    std::map<int, Stretch> stretches; ///< by first address
};

/// One entry for each earlier line, though a line between may have left several stretches of it.
std::vector<Taken> byLine(std::vector<Taken> taken)
{
    std::stable_sort(taken.begin(), taken.end(),
                     [](const Taken& one, const Taken& other) { return one.from < other.from; });
    const auto sameLine = [](const Taken& one, const Taken& other) { return one.from == other.from; };
    taken.erase(std::unique(taken.begin(), taken.end(), sameLine), taken.end());
    return taken;
}

/// What a later object has of the byte order of an earlier one, which its own line does not name: a swap stays set.
std::string takenOrder(const DefinitionObject& later, const DefinitionObject& earlier)
{
    DefinitionObject taken;
    taken.SwapBytes = earlier.SwapBytes && !later.SwapBytes;
    taken.SwapWords = earlier.SwapWords && !later.SwapWords;
    taken.SwapLongs = earlier.SwapLongs && !later.SwapLongs;
    const bool any = taken.SwapBytes || taken.SwapWords || taken.SwapLongs;
    return any ? ", and its byte order " + byteOrderText(taken) : "";
}

Finding overlapFinding(const PlacedLine& line, const PlacedLine& earlier, const Taken& taken)
{
    Finding finding = findingAbout(line, Rule::Overlap);
    finding.otherLine = earlier.number;
    if (line.text == earlier.text)
    {
        finding.message = "same as line " + std::to_string(earlier.number);
        return finding;
    }
    const bool single = taken.end - taken.first == 1;
    finding.message =
        (single ? "takes register " : "takes registers ") + addressText(static_cast<std::uint32_t>(taken.first));
    if (!single)
        finding.message += " to " + addressText(static_cast<std::uint32_t>(taken.end - 1));
    finding.message += " from ";
    finding.message += earlier.object.locked ? "the locked " : "";
    finding.message += std::string(earlier.object.tagname) + " of line " + std::to_string(earlier.number) +
                       takenOrder(line.object, earlier.object);
    return finding;
}

void appendOverlapsOf(Findings& findings, const PlacedLines& lines, RegisterSpace space)
{
    OwnedStretches stretches;
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        const DefinitionObject& object = lines[i].object;
        if (object.space != space || object.firstAddress() >= object.endAddress())
            continue;
        for (const Taken& taken : byLine(stretches.take(i, object.firstAddress(), object.endAddress())))
            findings.push_back(overlapFinding(lines[i], lines[taken.from], taken));
    }
}

} // namespace

void appendOverlaps(Findings& findings, const PlacedLines& lines, const LineOwners& owners)
{
    for (const RegisterSpace space : allSpaces)
    {
        // Most maps have none, and counting has shown that already.
        if (owners.hasOverlaps(space))
            appendOverlapsOf(findings, lines, space);
    }
}
