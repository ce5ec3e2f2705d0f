#include "source/GroupListReader.h"

#include "text/Integers.h"

#include <array>

// A group as the files have it; a tag belongs to it when it has one of the mask's bits:
//
//   {"mask": "4000", "flag": "ALM", "type": "user", "desc": "Alarms"}
//
// The mask is hexadecimal, with or without "0x", although a tag's own bits are given as a decimal number.

namespace
{

// The members of a group. "type" is kept, but nothing reads it.
// A mask that the file gives as a number is read like one that it gives as text: from its decimal digits, 16 is 0x16.
constexpr std::array<Member<TagGroup>, 4> members{{
    {"mask", [](TagGroup& group, std::string_view content) { group.mask = parseHexadecimal(content); }},
    {"flag", [](TagGroup& group, std::string_view content) { group.flag = content; }},
    {"type", [](TagGroup& group, std::string_view content) { group.type = content; }},
    {"desc", [](TagGroup& group, std::string_view content) { group.description = content; }},
}};

} // namespace

GroupListReader::GroupListReader(std::vector<TagGroup>& target) : groups(target), search(members) {}

bool GroupListReader::beginElement()
{
    // An element that is not an object becomes a group too, one without texts and with mask 0.
    groups.emplace_back();
    return true;
}

void GroupListReader::memberValue(std::string_view content)
{
    search.take(groups.back(), content);
}

void GroupListReader::endElement()
{
    // Only now: the mask may stand anywhere among the members, and twice. Equality is meant: a mask that has the
    // reserved bit among others is that of a group like any other.
    if (groups.back().mask == reservedMask)
        groups.pop_back();
}

void GroupListReader::clear()
{
    groups.clear();
}
