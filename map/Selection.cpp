#include "map/Selection.h"

#include <algorithm>

namespace
{

/// Far beyond what the objects of a space come to unless a file makes them overlap; 64 MB.
constexpr std::size_t longestSelection = 1U << 24U;

} // namespace

std::vector<int> collectSelection(const RegisterSlots& slots, std::span<const int> rowAddresses)
{
    // Heads only, though an expanded view lists every register as a row: an object that is selected with all its rows
    // must not come once for each of them.
    std::vector<int> addresses;
    for (const int row : rowAddresses)
    {
        if (addresses.size() > longestSelection - registersPerSpace)
            break;
        // A slot that a move has vacated is free, but as the former part of an object it adds nothing either.
        if (!RegisterSlots::contains(row) || !isHead(slots[row]))
            continue;
        const std::int64_t afterObject = std::int64_t{row} + registersTaken(slots[row]);
        const int end = static_cast<int>(std::min<std::int64_t>(afterObject, registersPerSpace));
        for (int address = row; address < end; ++address)
            addresses.push_back(address);
    }
    return addresses;
}
