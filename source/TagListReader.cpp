#include "source/TagListReader.h"

#include "json/JsonNumber.h"
#include "source/TagDatabase.h"

#include <array>
#include <cstdint>
#include <span>

// A tag as the files have it, with its numbers as numbers or as texts of digits:
//
//   {"Name": "Pumps.P1.Speed", "Description": "Speed of pump 1", "Type": "Numeric", "Size": 4, "Elements": 2,
//    "Attributes": 0, "Groups": 16384}
//
// A member that is missing leaves what an unused record has. Members may come in any order, so nothing is decided
// before the last of them.

namespace
{

/// The type that the word stands for, in exactly this letter case. "Float" is what the grid shows for "Numeric", and no
/// word of the file. Any other word leaves the code of an unused record, which is that of "Integer".
TagType typeOf(std::string_view word)
{
    if (word == "Numeric")
        return TagType::Numeric;
    if (word == "String")
        return TagType::String;
    return TagType::Integer;
}

std::int32_t signedNumber(std::string_view content)
{
    return static_cast<std::int32_t>(wholeNumberBits(content));
}

// The members of a tag. "Attributes" is kept, but nothing reads it.
// A size keeps its low 8 bits, the other numbers their low 32: that much room a tag has for them.
constexpr std::array<Member<UnfinishedTag>, 7> members{{
    {"Name", [](UnfinishedTag& tag, std::string_view content) { tag.name = content; }},
    {"Description", [](UnfinishedTag& tag, std::string_view content) { tag.description = content; }},
    {"Type", [](UnfinishedTag& tag, std::string_view content) { tag.record.type = typeOf(content); }},
    {"Size", [](UnfinishedTag& tag, std::string_view content)
     { tag.record.size = static_cast<std::uint8_t>(wholeNumberBits(content)); }},
    {"Elements", [](UnfinishedTag& tag, std::string_view content) { tag.record.elements = signedNumber(content); }},
    {"Attributes", [](UnfinishedTag& tag, std::string_view content) { tag.record.attributes = signedNumber(content); }},
    {"Groups", [](UnfinishedTag& tag, std::string_view content) { tag.record.groups = wholeNumberBits(content); }},
}};

} // namespace

TagListReader::TagListReader(TagTable& target) : tags(target), search(members) {}

bool TagListReader::beginElement()
{
    // Cleared rather than made anew: the memory of the two texts serves all tags.
    UnfinishedTag& tag = group[complete];
    tag.record = {};
    tag.name.clear();
    tag.description.clear();
    return true;
}

void TagListReader::memberValue(std::string_view content)
{
    search.take(group[complete], content);
}

void TagListReader::endElement()
{
    // Texts are kept for the life of the program once they are interned, so those of tags that are left out must not
    // be.
    if (group[complete].record.groups == reservedMask || room() == 0)
        return;
    if (++complete == group.size())
        finish();
}

void TagListReader::finish()
{
    std::array<std::string_view, 2 * groupSize> texts;
    std::array<InternedText, 2 * groupSize> handles;
    for (std::size_t i = 0; i < complete; ++i)
    {
        texts[2 * i] = group[i].name;
        texts[2 * i + 1] = group[i].description;
    }
    InternedText::internAll(std::span(texts).first(2 * complete), handles);
    for (std::size_t i = 0; i < complete; ++i)
        tags.prepare(handles[2 * i]);
    for (std::size_t i = 0; i < complete; ++i)
    {
        group[i].record.name = handles[2 * i];
        group[i].record.description = handles[2 * i + 1];
        tags.append(group[i].record);
    }
    complete = 0;
}

void TagListReader::clear()
{
    tags.clear();
    complete = 0;
}
