#pragma once

#include "map/RegisterMap.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

/// Maps drawn as text, one character a slot: '.' is free, '#' is free and locked, a run of one letter is an object of
/// that name, in lower case when it is locked. "AAb.C" is a FLOAT A, a locked INT16 b, a gap and an INT16 C.

/// The type that a drawn object has: two registers make a FLOAT, four a DOUBLE, any other length but one a STRING.
inline DataType drawnType(int count)
{
    switch (count)
    {
    case 1:
        return DataType::Int16;
    case 2:
        return DataType::Float;
    case 4:
        return DataType::Double;
    default:
        return DataType::String;
    }
}

/// A register of an object, for placing; not locked, bound to some tag, without error marks.
inline RegisterEntry registerOf(std::string_view name, int count)
{
    RegisterEntry entry;
    entry.used = true;
    entry.type = drawnType(count);
    entry.registerCount = static_cast<std::uint32_t>(count);
    entry.SwapWords = count > 1;
    entry.tagIndex = static_cast<int>(name.size());
    entry.tagname = InternedText(name);
    entry.description = InternedText("about " + std::string(name));
    return entry;
}

/// Places an object, cut off at the end of the space.
inline void place(RegisterSlots& slots, int start, RegisterEntry entry)
{
    entry.startAddress = static_cast<std::uint32_t>(start);
    for (std::uint32_t i = 0; i < entry.registerCount && RegisterSlots::contains(std::int64_t{start} + i); ++i)
    {
        entry.address = entry.startAddress + i;
        slots[static_cast<int>(entry.address)] = entry;
    }
}

/// Draws a picture from `first` on, over whatever was there.
inline void draw(RegisterSlots& slots, int first, std::string_view picture)
{
    clearSlots(slots, first, static_cast<std::uint32_t>(picture.size()));
    for (std::size_t begin = 0; begin < picture.size();)
    {
        const char letter = picture[begin];
        const int address = first + static_cast<int>(begin);
        if (std::isalpha(static_cast<unsigned char>(letter)) == 0)
        {
            slots[address].locked = letter == '#';
            ++begin;
            continue;
        }
        const std::size_t end = std::min(picture.find_first_not_of(letter, begin), picture.size());
        const char name = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
        RegisterEntry entry = registerOf(std::string_view(&name, 1), static_cast<int>(end - begin));
        entry.locked = letter != name;
        place(slots, address, entry);
        begin = end;
    }
}

/// A space of free slots but for the picture.
inline std::unique_ptr<RegisterSlots> drawnSpace(int first, std::string_view picture)
{
    auto slots = std::make_unique<RegisterSlots>();
    draw(*slots, first, picture);
    return slots;
}

/// What a stretch of slots looks like, by the same signs; '!' is a slot that names another address as its own.
inline std::string pictureOf(const RegisterSlots& slots, int first, int count)
{
    std::string picture;
    for (int address = first; address < first + count; ++address)
    {
        const RegisterEntry& slot = slots[address];
        if (slot.address != static_cast<std::uint32_t>(address))
            picture += '!';
        else if (!slot.used || slot.tagname.empty())
            picture += slot.locked ? '#' : '.';
        else
            picture += static_cast<char>(slot.locked ? std::tolower(slot.tagname.view().front())
                                                     : std::toupper(slot.tagname.view().front()));
    }
    return picture;
}

/// How many slots of the four spaces are used.
inline int usedSlots(const RegisterMap& map)
{
    std::ptrdiff_t count = 0;
    for (const RegisterSpace space : allSpaces)
        count += std::count_if(map.slots(space).begin(), map.slots(space).end(), std::mem_fn(&RegisterEntry::used));
    return static_cast<int>(count);
}

/// True when the slots are as they would be after drawing the picture there, every field of them.
inline bool looksLike(const RegisterSlots& slots, int first, std::string_view picture)
{
    const auto drawn = drawnSpace(first, picture);
    const auto length = static_cast<std::ptrdiff_t>(picture.size());
    return std::equal(slots.begin() + first, slots.begin() + first + length, drawn->begin() + first);
}

/// The first address of first..last that holds part of an object of which not all is there; -1 when there is none.
inline int tornObjectIn(const RegisterSlots& slots, int first, int last)
{
    for (int address = first; address <= last;)
    {
        const RegisterEntry& head = slots[address];
        if (!head.used)
        {
            ++address;
            continue;
        }
        if (!isHead(head))
            return address;
        for (std::uint32_t i = 0; i < head.registerCount; ++i, ++address)
        {
            if (address > last)
                return last;
            RegisterEntry expected = head;
            expected.address += i;
            expected.tagname = slots[address].tagname;
            if (slots[address] != expected)
                return address;
        }
    }
    return -1;
}
