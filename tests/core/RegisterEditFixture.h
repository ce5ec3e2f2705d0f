#pragma once

#include "map/RegisterEdit.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>

/// The largest number of registers that an object can say it has.
inline constexpr int highestCount = std::numeric_limits<std::int32_t>::max();

/// A space with a few objects in it.
class RegisterEditFixture : public testing::Test
{
protected:
    void place(int address, int count, std::string_view tagname, DataType type = DataType::String)
    {
        RegisterEntry entry;
        entry.type = type;
        entry.registerCount = static_cast<std::uint32_t>(count);
        entry.tagname = InternedText(tagname);
        map.placeObject(RegisterSpace::Holding, address, entry, count);
    }

    RegisterEntry& slot(int address) { return slots[address]; }

    /// The tagnames of `count` slots in one text, "." standing for a free slot.
    std::string picture(int first, int count)
    {
        std::string text;
        for (int address = first; address < first + count; ++address)
            text += slot(address).used ? slot(address).tagname.view() : ".";
        return text;
    }

    RegisterMap map;
    RegisterSlots& slots = map.slots(RegisterSpace::Holding);
};
