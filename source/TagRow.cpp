#include "source/TagRow.h"

#include <cstdint>
#include <string_view>
#include <vector>

// A row of the tag grid is worked out when it is painted: a database may have 65,536 of them, and some forty are in
// sight. The last column, the tag's index, has no width; it is how the row is found again in the table.

namespace
{

TagCell typeCell(TagType type)
{
    // "Float" is what the users call the type that the files call "Numeric".
    switch (type)
    {
    case TagType::Integer:
        return {"Integer", TagTone::Integer};
    case TagType::Numeric:
        return {"Float", TagTone::Float};
    case TagType::String:
        return {"String", TagTone::String};
    }
    // A code that no word of the files stands for; reading a file never gives one.
    return {"Unknown", TagTone::UnknownType};
}

/// The flag names of the groups that the tag belongs to, joined by "-".
std::string flagsText(const std::vector<TagGroup>& groups, std::uint32_t tagGroups)
{
    std::string flags;
    for (const TagGroup& group : groups)
    {
        if ((group.mask & tagGroups) != 0)
            flags += group.flag + "-";
    }
    // Cut before the last "-", the one after the last name. Names may be empty or hold a "-" of their own, and keep it.
    return flags.substr(0, flags.empty() ? 0 : flags.rfind('-'));
}

TagCell plainCell(std::string_view text)
{
    return {std::string(text), TagTone::Plain};
}

} // namespace

TagCell tagCell(const TagDatabase& database, int tagIndex, int column)
{
    const TagRecord& tag = database.tags[tagIndex];
    switch (static_cast<TagColumn>(column))
    {
    case TagColumn::Name:
        return plainCell(tag.name.view());
    case TagColumn::Type:
        return typeCell(tag.type);
    case TagColumn::Size:
        return plainCell(std::to_string(tag.size));
    case TagColumn::Flags:
        return {flagsText(database.groups, tag.groups), TagTone::Flags};
    case TagColumn::Description:
        return plainCell(tag.description.view());
    case TagColumn::Index:
        return plainCell(std::to_string(tagIndex));
    }
    return plainCell("");
}
