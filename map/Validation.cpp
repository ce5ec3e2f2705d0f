#include "map/Validation.h"

#include "map/ErrorMarks.h"

#include <cstdint>

// What a register needs, by the tag that its name stands for:
//
//   no such tag          nothing helps: the register has the mark of an unknown tag, and no other
//   Integer, Numeric     one of the four types of numbers; which of them, and how long, is up to the user
//   String               STRING, with two characters a register enough for the tag's size
//   any other type       nothing
//   written by master    a tag of at least two elements
//
// A register without a name finds the first unused record of the table, whose name is empty too. Looks wrong and is
// required: such a register has no mark.

namespace
{

/// Looks tag names up once per run of equal names: the registers of an object follow each other.
class TagLookup
{
public:
    explicit TagLookup(const TagTable& table) : tags(table) {}

    /// Index of the tag of that name, -1 when there is none.
    std::int32_t indexOf(InternedText name)
    {
        if (!asked || name != lastName)
        {
            asked = true;
            lastName = name;
            lastIndex = tags.find(name).value_or(-1);
        }
        return lastIndex;
    }

private:
    const TagTable& tags;
    bool asked = false;
    InternedText lastName;
    std::int32_t lastIndex = -1;
};

bool typeSuits(const RegisterEntry& slot, const TagRecord& tag)
{
    switch (tag.type)
    {
    case TagType::String:
        return slot.type == DataType::String && std::uint64_t{slot.registerCount} * 2 >= tag.size;
    case TagType::Integer:
    case TagType::Numeric:
        // The types of numbers have the codes before that of STRING.
        return slot.type < DataType::String;
    }
    return true;
}

/// A master's write needs a second element of the tag to land in.
constexpr std::int32_t elementsToWrite = 2;

void validateSlot(RegisterEntry& slot, const TagTable& tags, TagLookup& lookup)
{
    slot.tagIndex = lookup.indexOf(slot.tagname);
    slot.typeValid = true;
    slot.writeValid = true;
    if (slot.tagIndex < 0)
        return;
    const TagRecord& tag = tags[slot.tagIndex];
    slot.typeValid = typeSuits(slot, tag);
    slot.writeValid = !slot.write || tag.elements >= elementsToWrite;
}

} // namespace

// Locks, overlaps, spaces and byte order are not looked at: a map may be wrong in ways that only its user can judge.
void validateMap(RegisterMap& map, const TagTable& tags)
{
    TagLookup lookup(tags);
    for (const RegisterSpace space : allSpaces)
    {
        for (RegisterEntry& slot : map.slots(space))
        {
            if (slot.used)
                validateSlot(slot, tags, lookup);
        }
    }
}

int countErrors(const RegisterMap& map)
{
    // By register, not by object: an INT32 whose tag is unknown counts twice, as its two rows show it.
    int count = 0;
    for (const RegisterSpace space : allSpaces)
    {
        for (const RegisterEntry& slot : map.slots(space))
            count += errorMarks(slot);
    }
    return count;
}
