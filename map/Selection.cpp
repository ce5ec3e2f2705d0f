#include "map/Selection.h"

#include "map/SlotAccess.h"

#include <algorithm>

std::vector<int> collectSelection(const RegisterSlots& slots, std::span<const int> rowAddresses)
{
    std::vector<int> addresses;
    for (const int row : rowAddresses)
    {
        if (!isAddress(row) || !isHead(slotAt(slots, row)))
            continue;
        const std::int64_t behind = std::int64_t{row} + slotAt(slots, row).registerCount;
        const int end = static_cast<int>(std::min<std::int64_t>(behind, registersPerSpace));
        for (int address = row; address < end; ++address)
            addresses.push_back(address);
    }
    return addresses;
}
