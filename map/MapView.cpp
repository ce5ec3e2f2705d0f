#include "map/MapView.h"

#include <numeric>

std::string_view viewModeLabel(ViewMode mode)
{
    switch (mode)
    {
    case ViewMode::All:
        return "ALL";
    case ViewMode::Expanded:
        return "EXPANDED";
    case ViewMode::Compressed:
        return "COMPRESSED";
    }
    return "NONE";
}

ViewMode nextViewMode(ViewMode mode)
{
    switch (mode)
    {
    case ViewMode::All:
        return ViewMode::Compressed;
    case ViewMode::Compressed:
        return ViewMode::Expanded;
    case ViewMode::Expanded:
        break;
    }
    return ViewMode::All;
}

std::vector<int> shownAddresses(const RegisterSlots& slots, ViewMode mode)
{
    std::vector<int> addresses;
    if (mode == ViewMode::All)
    {
        addresses.resize(slots.size());
        std::iota(addresses.begin(), addresses.end(), 0);
        return addresses;
    }
    if (mode != ViewMode::Expanded && mode != ViewMode::Compressed)
        return addresses;
    for (const RegisterEntry& slot : slots)
    {
        if (slot.used && (mode == ViewMode::Expanded || isHead(slot)))
            addresses.push_back(static_cast<int>(&slot - slots.data()));
    }
    return addresses;
}

std::string statusText(int errorCount)
{
    if (errorCount > 0)
        return "  WARNING : " + std::to_string(errorCount) + " error(s) found in register map";
    return "  No errors";
}
