#include "map/DefinitionPlacer.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <variant>

// Three lines whose objects overlap, and what comes of them:
//
//   line 1   A A A A                placed last: two slots are left for it
//   line 2       B B B B            placed second
//   line 3           C C            placed first
//   slots    A A B B C C
//
// A line does not clear the flags that it does not name, so B's slots also carry the flags of A where the two overlap.
// The flags therefore have their own notes of what is still to be visited: a slot that has its object may still get
// flags.

namespace
{

/// Gives a slot what its object says, field by field: its byte-order flags and what validation found out stay.
void overwriteSlot(RegisterEntry& slot, int address, const DefinitionObject& object)
{
    slot.used = true;
    slot.locked = object.locked;
    slot.startAddress = static_cast<std::uint32_t>(object.start);
    slot.address = static_cast<std::uint32_t>(address);
    slot.type = object.type;
    slot.registerCount = static_cast<std::uint32_t>(object.count);
    slot.write = object.write;
}

} // namespace

DefinitionPlacer::DefinitionPlacer(RegisterMap& target, std::size_t expected) : map(target)
{
    waiting.reserve(std::min(expected, mostWaiting));
}

LineMeaning DefinitionPlacer::parseDefinitionLine(const DefinitionFields& fields)
{
    LineMeaning meaning = lineMeaning(fields);
    if (const auto* const object = std::get_if<DefinitionObject>(&meaning))
    {
        waiting.push_back(*object);
        ++taken;
        if (waiting.size() == mostWaiting)
            placeAll();
    }
    return meaning;
}

void DefinitionPlacer::placeAll()
{
    // From the last line to the first: a later line wins, so what it covers need not be looked at again.
    std::array<LeftOver, spaceCount> left;
    texts.reserve(2 * waiting.size());
    runs.reserve(waiting.size());
    std::for_each(waiting.rbegin(), waiting.rend(),
                  [&](const DefinitionObject& object) { place(object, left[static_cast<std::size_t>(object.space)]); });
    writeSlots();
    comeBack = comeBack && (!overlapping || std::all_of(waiting.begin(), waiting.end(),
                                                        [this](const auto& object) { return isOrderItsOwn(object); }));
    waiting.clear();
}

/// Whether the first slot has no flag of an object that lies below this one.
bool DefinitionPlacer::isOrderItsOwn(const DefinitionObject& object) const
{
    const RegisterSlots& slots = map.slots(object.space);
    if (!RegisterSlots::contains(object.start))
        return false;
    const RegisterEntry& head = slots[object.start];
    return head.SwapBytes == object.SwapBytes && head.SwapWords == object.SwapWords &&
           head.SwapLongs == object.SwapLongs;
}

void DefinitionPlacer::place(const DefinitionObject& object, LeftOver& left)
{
    const int first = object.firstAddress();
    const int end = object.endAddress();
    const std::size_t runsBefore = runs.size();
    int slotsGot = 0;
    left.slots.visitRuns(first, end,
                         [&](int runFirst, int runEnd)
                         {
                             runs.push_back({&object, texts.size(), runFirst, runEnd});
                             slotsGot += runEnd - runFirst;
                         });
    // Slots are visited upwards, so the first one got is the head if that was to be had.
    const bool hasHead = slotsGot > 0 && runs[runsBefore].first == object.start;
    comeBack = comeBack && hasHead;
    overlapping = overlapping || slotsGot < end - first;
    if (slotsGot > 0)
        texts.insert(texts.end(), {object.tagname, object.description});

    RegisterSlots& slots = map.slots(object.space);
    // A flag stays set whichever line names it, so a slot takes each flag from any of the objects that cover it.
    if (object.SwapBytes)
        left.swapBytes.visit(first, end, [&](int address) { slots[address].SwapBytes = true; });
    if (object.SwapWords)
        left.swapWords.visit(first, end, [&](int address) { slots[address].SwapWords = true; });
    if (object.SwapLongs)
        left.swapLongs.visit(first, end, [&](int address) { slots[address].SwapLongs = true; });
}

/// Texts are kept for the life of the program, so they are made only when it is known which objects have a slot. A slot
/// is written once, with its texts: 262,144 slots are more than the processor's caches hold.
void DefinitionPlacer::writeSlots()
{
    std::vector<InternedText> handles(texts.size());
    InternedText::internAll(texts, handles);
    for (const SlotRun& run : runs)
    {
        RegisterSlots& slots = map.slots(run.object->space);
        for (int address = run.first; address < run.end; ++address)
        {
            RegisterEntry& slot = slots[address];
            overwriteSlot(slot, address, *run.object);
            slot.tagname = handles[run.text];
            slot.description = handles[run.text + 1];
        }
    }
    texts.clear();
    runs.clear();
}
