#include "map/DefinitionPlacer.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace
{

/// As many as there are slots: few enough to keep, and enough for walking over all spaces to carry no weight.
constexpr std::size_t mostWaiting = std::size_t{spaceCount} * registersPerSpace;

/// What the slots of an object have in common, without the byte-order flags.
RegisterEntry slotValues(const DefinitionObject& object)
{
    RegisterEntry values;
    values.used = true;
    values.locked = object.locked;
    values.startAddress = static_cast<std::uint32_t>(object.start);
    values.type = object.type;
    values.registerCount = static_cast<std::uint32_t>(object.count);
    values.write = object.write;
    values.tagname = InternedText(object.tagname);
    values.description = InternedText(object.description);
    return values;
}

/// Gives a slot the values of its object, field by field: its byte-order flags and what validation found out stay.
void overwriteSlot(RegisterEntry& slot, int address, const RegisterEntry& values)
{
    slot.used = values.used;
    slot.locked = values.locked;
    slot.startAddress = values.startAddress;
    slot.address = static_cast<std::uint32_t>(address);
    slot.type = values.type;
    slot.registerCount = values.registerCount;
    slot.write = values.write;
    slot.tagname = values.tagname;
    slot.description = values.description;
}

} // namespace

DefinitionPlacer::DefinitionPlacer(RegisterMap& target) : map(target) {}

void DefinitionPlacer::parseDefinitionLine(const DefinitionFields& fields)
{
    const std::optional<DefinitionObject> object = describedObject(fields);
    if (!object)
        return;
    waiting.push_back(*object);
    if (waiting.size() == mostWaiting)
        placeAll();
}

void DefinitionPlacer::placeAll()
{
    // From the last line to the first: a later line wins, so what it covers need not be looked at again.
    std::array<LeftOver, spaceCount> left;
    for (auto object = waiting.rbegin(); object != waiting.rend(); ++object)
        place(*object, left[static_cast<std::size_t>(object->space)]);
    waiting.clear();
}

void DefinitionPlacer::place(const DefinitionObject& object, LeftOver& left)
{
    const int first = object.firstAddress();
    const int end = object.endAddress();
    RegisterSlots& slots = map.slots(object.space);

    // Texts are kept for the life of the program, so those of an object that no slot shows are not even made.
    std::optional<RegisterEntry> values;
    left.slots.visit(first, end,
                     [&](int address)
                     {
                         if (!values)
                             values = slotValues(object);
                         overwriteSlot(slots[address], address, *values);
                     });

    // A flag stays set whichever line names it, so a slot takes each flag from any of the objects that cover it.
    if (object.SwapBytes)
        left.swapBytes.visit(first, end, [&](int address) { slots[address].SwapBytes = true; });
    if (object.SwapWords)
        left.swapWords.visit(first, end, [&](int address) { slots[address].SwapWords = true; });
    if (object.SwapLongs)
        left.swapLongs.visit(first, end, [&](int address) { slots[address].SwapLongs = true; });
}
