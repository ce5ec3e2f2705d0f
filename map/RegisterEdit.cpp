#include "map/RegisterEdit.h"

#include "map/Insertion.h"
#include "text/Characters.h"

#include <algorithm>
#include <charconv>
#include <limits>

// How large the object H may become; A is another object, L a locked register, dots are free slots:
//
//   slots          H h . . A A . L . .
//   freeRoom       -------                4: its own registers and the free ones right after them
//   movableRoom    -------     -          5: with A moved down, the free one before the lock too
//
// What lies after the lock does not count, since nothing is moved past it.

namespace
{

std::int32_t saturated(std::int64_t registers)
{
    return static_cast<std::int32_t>(std::min<std::int64_t>(registers, std::numeric_limits<std::int32_t>::max()));
}

/// Drops the byte-order flags that mean nothing for the entry's type.
void clearUnusableSwaps(RegisterEntry& entry)
{
    // A text is a row of characters, not a number: no byte order applies. The others have the parts that their
    // registers make up: one has bytes, two have words, four have longs.
    const bool hasBytes = entry.type != DataType::String;
    const bool hasWords = hasBytes && entry.type != DataType::Int16;
    const bool hasLongs = entry.type == DataType::Double;
    entry.SwapBytes = entry.SwapBytes && hasBytes;
    entry.SwapWords = entry.SwapWords && hasWords;
    entry.SwapLongs = entry.SwapLongs && hasLongs;
}

/// The object that the editor describes. It is not locked, because a locked one is not edited.
RegisterEntry entryOf(const EditedRegister& edited)
{
    RegisterEntry entry;
    entry.type = typeFromName(edited.typeName);
    entry.registerCount = static_cast<std::uint32_t>(edited.registerCount);
    entry.SwapBytes = edited.SwapBytes;
    entry.SwapWords = edited.SwapWords;
    entry.SwapLongs = edited.SwapLongs;
    entry.write = edited.write;
    entry.tagname = InternedText(edited.tagname);
    entry.description = InternedText(edited.description);
    clearUnusableSwaps(entry);
    return entry;
}

} // namespace

// Walks slot by slot and does not trust `startAddress`: overlapping lines of a file leave registers without a head.
std::optional<int> editedHead(const RegisterSlots& slots, int rowAddress)
{
    if (!RegisterSlots::contains(rowAddress))
        return std::nullopt;
    int address = rowAddress;
    while (address > 0 && isContinuation(slots[address]))
        --address;
    return slots[address].locked ? std::nullopt : std::optional(address);
}

RegisterEntry editedEntry(const RegisterSlots& slots, int head)
{
    const RegisterEntry& slot = slots[head];
    return slot.used ? slot : freeSlot(head);
}

EditRoom editRoom(const RegisterSlots& slots, int head)
{
    const std::int64_t count = registersTaken(slots[head]);
    const auto afterEntry = static_cast<int>(std::min<std::int64_t>(head + count, registersPerSpace));

    int firstUsed = afterEntry;
    while (firstUsed <= lastAddress && !slots[firstUsed].used)
        ++firstUsed;

    // Free registers count wherever they are before the lock: moving the objects between them closes those gaps.
    int freeBeforeLock = 0;
    for (int address = afterEntry; address <= lastAddress && !slots[address].locked; ++address)
    {
        if (!slots[address].used)
            ++freeBeforeLock;
    }
    return {saturated(count + firstUsed - afterEntry), saturated(count + freeBeforeLock)};
}

SpaceCheck checkSpace(std::string_view lengthText, EditRoom room)
{
    // A field that is being typed in may be empty for a moment, which is no reason to warn. On confirmation the same
    // text counts as 0 and is refused.
    const std::int32_t length = parseLength(lengthText).value_or(1);
    if (length > room.movableRoom)
        return SpaceCheck::TooLong;
    return length <= room.freeRoom ? SpaceCheck::Fits : SpaceCheck::FitsByMoving;
}

std::optional<std::int32_t> parseLength(std::string_view text)
{
    text = withoutLeadingBlanks(text);
    // The library's reader knows a minus only.
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    std::int32_t length = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), length);
    if (error == std::errc::invalid_argument || end != text.data() + text.size())
        return std::nullopt;
    if (error == std::errc::result_out_of_range)
    {
        // A number of many digits is a mistake to point out. Were it no number, it would count as one register.
        using Limits = std::numeric_limits<std::int32_t>;
        return text.starts_with('-') ? Limits::min() : Limits::max();
    }
    return length;
}

EditConfirmation confirmEdit(std::string_view tagname, std::string_view lengthText)
{
    // Looks wrong and is required: without a name the edit is dropped silently, whatever else is in the fields.
    if (tagname.empty())
        return EditConfirmation::Cancel;
    return parseLength(lengthText).value_or(0) < 1 ? EditConfirmation::NoLength : EditConfirmation::Apply;
}

std::optional<FieldVisibility> visibilityFor(std::string_view typeName)
{
    if (typeName == "INT16")
        return FieldVisibility{.lengthField = false, .byteOrder = true, .SwapBytes = true};
    if (typeName == "INT32" || typeName == "FLOAT")
        return FieldVisibility{.lengthField = false, .byteOrder = true, .SwapBytes = true, .SwapWords = true};
    // Looks like an oversight and is required: after a STRING the field stays, without its label.
    if (typeName == "DOUBLE")
        return FieldVisibility{
            .lengthField = std::nullopt, .byteOrder = true, .SwapBytes = true, .SwapWords = true, .SwapLongs = true};
    if (typeName == "STRING")
        return FieldVisibility{.lengthLabel = true, .lengthField = true};
    // The type can be typed, so most texts on the way to a name are none: nothing flickers meanwhile.
    return std::nullopt;
}

void applyEdit(RegisterMap& map, int head, const EditedRegister& edited)
{
    RegisterSlots& slots = map.currentSlots();
    if (!RegisterSlots::contains(head) || slots[head].locked)
        return;
    // The old object goes first, locked continuations included, so that its own registers are room for the new one.
    clearSlots(slots, head, registersTaken(slots[head]));
    map.placeObject(map.currentSpace, head, entryOf(edited), makeRoom(slots, head, edited.registerCount));
}
