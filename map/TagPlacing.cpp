#include "map/TagPlacing.h"

#include "map/Clipboard.h"

// What a tag becomes, whatever its size. INT32 and DOUBLE arise in the register editor only:
//
//   Integer    INT16, 1 register               byte order of whole numbers
//   Numeric    FLOAT, 2 registers              byte order of floats
//   String     STRING, 1 for 2 characters      none
//
// All three flags of a byte order are taken, those too that the type cannot use and the settings do not show: the
// command line can set those of floats, and a later edit drops what does not fit.

namespace
{

void shapeAsInteger(RegisterEntry& entry, const DefaultByteOrder& byteOrder)
{
    entry.type = DataType::Int16;
    entry.registerCount = 1;
    entry.SwapBytes = byteOrder.intSwapBytes;
    entry.SwapWords = byteOrder.intSwapWords;
    entry.SwapLongs = byteOrder.intSwapLongs;
}

void shapeAsFloat(RegisterEntry& entry, const DefaultByteOrder& byteOrder)
{
    entry.type = DataType::Float;
    entry.registerCount = 2;
    entry.SwapBytes = byteOrder.floatSwapBytes;
    entry.SwapWords = byteOrder.floatSwapWords;
    entry.SwapLongs = byteOrder.floatSwapLongs;
}

void shapeAsString(RegisterEntry& entry, std::uint8_t characters)
{
    entry.type = DataType::String;
    entry.registerCount = registersForString(characters);
    entry.SwapBytes = false;
    entry.SwapWords = false;
    entry.SwapLongs = false;
}

/// Sets type, register count and byte order as the tag's type asks; an unknown type code leaves them.
void shapeFor(RegisterEntry& entry, const TagRecord& tag, const DefaultByteOrder& byteOrder)
{
    switch (tag.type)
    {
    case TagType::Integer:
        shapeAsInteger(entry, byteOrder);
        break;
    case TagType::Numeric:
        shapeAsFloat(entry, byteOrder);
        break;
    case TagType::String:
        shapeAsString(entry, tag.size);
        break;
    }
}

} // namespace

std::vector<RegisterEntry> copySourceTags(const TagTable& tags, std::span<const int> tagIndices,
                                          const DefaultByteOrder& byteOrder)
{
    std::vector<RegisterEntry> registers;
    // One entry for all tags: a tag of unknown type takes over the shape of the one before it.
    RegisterEntry entry;
    entry.used = true;
    shapeAsInteger(entry, byteOrder);
    for (const int index : tagIndices)
    {
        if (index < 0 || index >= tags.count())
            continue;
        // Its place in the table is known here, so the register has its tag without a validation.
        const TagRecord& tag = tags[index];
        shapeFor(entry, tag, byteOrder);
        entry.tagIndex = index;
        entry.tagname = tag.name;
        entry.description = tag.description;
        // Each object begins at 0: the paste moves it to where it goes. A text of no characters has no register.
        for (entry.address = 0; entry.address < entry.registerCount && registers.size() < clipboardCapacity;
             ++entry.address)
            registers.push_back(entry);
    }
    return registers;
}
