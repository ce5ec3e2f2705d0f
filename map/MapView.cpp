#include "map/MapView.h"

#include <numeric>

// A view is a list of addresses, one for each row; what a row shows is asked for when it is painted. Every command
// finds a row's registers by its address, so commands know nothing of the view they are given in.

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
    return "NONE"; // no mode leads here, but the label has a text for any value
}

// Not in the order of their values: from the view at start it goes COMPRESSED, EXPANDED, ALL.
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
        addresses.resize(RegisterSlots::size());
        std::iota(addresses.begin(), addresses.end(), 0);
        return addresses;
    }
    if (mode != ViewMode::Expanded && mode != ViewMode::Compressed)
        return addresses;
    for (int address = 0; address < RegisterSlots::size(); ++address)
    {
        // `used` first: a slot that a move has vacated may still look like a head.
        if (slots[address].used && (mode == ViewMode::Expanded || isHead(slots[address])))
            addresses.push_back(address);
    }
    return addresses;
}

std::string statusText(int errorCount)
{
    // The leading blanks are part of both texts.
    if (errorCount > 0)
        return "  WARNING : " + std::to_string(errorCount) + " error(s) found in register map";
    return "  No errors";
}
