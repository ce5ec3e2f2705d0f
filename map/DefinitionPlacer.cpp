#include "map/DefinitionPlacer.h"

#include <string_view>

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
    const std::vector<InternedText> texts = waitingTexts();
    std::array<LeftOver, spaceCount> left;
    for (std::size_t i = waiting.size(); i-- > 0;)
    {
        const DefinitionObject& object = waiting[i];
        const RegisterEntry values = slotValues(object, texts[2 * i], texts[2 * i + 1]);
        place(object, values, left[static_cast<std::size_t>(object.space)]);
    }
    waiting.clear();
}

std::vector<InternedText> DefinitionPlacer::waitingTexts() const
{
    std::vector<std::string_view> texts;
    texts.reserve(2 * waiting.size());
    for (const DefinitionObject& object : waiting)
        texts.insert(texts.end(), {object.tagname, object.description});
    std::vector<InternedText> handles(texts.size());
    InternedText::internAll(texts, handles);
    return handles;
}

void DefinitionPlacer::place(const DefinitionObject& object, const RegisterEntry& values, LeftOver& left)
{
    const int first = object.firstAddress();
    const int end = object.endAddress();
    RegisterSlots& slots = map.slots(object.space);
    left.slots.visit(first, end, [&](int address) { overwriteSlot(slots[address], address, values); });
    if (object.SwapBytes)
        left.swapBytes.visit(first, end, [&](int address) { slots[address].SwapBytes = true; });
    if (object.SwapWords)
        left.swapWords.visit(first, end, [&](int address) { slots[address].SwapWords = true; });
    if (object.SwapLongs)
        left.swapLongs.visit(first, end, [&](int address) { slots[address].SwapLongs = true; });
}
