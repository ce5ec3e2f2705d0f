#include "map/DefinitionPlacer.h"

#include "map/SlotAccess.h"

#include <algorithm>
#include <ranges>

namespace
{

/// As many as there are slots: few enough to keep, and enough for walking over all spaces to carry no weight.
constexpr std::size_t mostWaiting = std::size_t{spaceCount} * registersPerSpace;

} // namespace

DefinitionPlacer::DefinitionPlacer(RegisterMap& target) : map(target)
{
    waiting.reserve(mostWaiting);
}

void DefinitionPlacer::add(const DefinitionObject& object)
{
    waiting.push_back(object);
    if (waiting.size() == mostWaiting)
        placeAll();
}

void DefinitionPlacer::placeAll()
{
    std::array<LeftOver, spaceCount> left;
    for (const DefinitionObject& object : waiting | std::views::reverse)
        place(object, left[static_cast<std::size_t>(object.space)]);
    waiting.clear();
}

void DefinitionPlacer::place(const DefinitionObject& object, LeftOver& left)
{
    const RegisterEntry values = slotValues(object);
    const int first = object.firstAddress();
    const int end = object.endAddress();
    RegisterSlots& slots = map.slots(object.space);
    left.slots.visit(first, end, [&](int address) { overwriteSlot(slotAt(slots, address), address, values); });
    if (object.SwapBytes)
        left.swapBytes.visit(first, end, [&](int address) { slotAt(slots, address).SwapBytes = true; });
    if (object.SwapWords)
        left.swapWords.visit(first, end, [&](int address) { slotAt(slots, address).SwapWords = true; });
    if (object.SwapLongs)
        left.swapLongs.visit(first, end, [&](int address) { slotAt(slots, address).SwapLongs = true; });
}
