#pragma once

#include "source/TagTable.h"

#include <initializer_list>
#include <string>
#include <string_view>

/// A tag as a database lists it.
/// @param size      characters of a String tag
/// @param elements  2 for a tag that takes writes
inline TagRecord tagOf(std::string_view name, TagType type = TagType::Integer, std::uint8_t size = 0,
                       std::int32_t elements = 1)
{
    TagRecord tag;
    tag.name = InternedText(name);
    tag.description = InternedText("about " + std::string(name));
    tag.type = type;
    tag.size = size;
    tag.elements = elements;
    return tag;
}

/// A table of tags of which only the names matter, in this order.
inline TagTable tableOf(std::initializer_list<const char*> names)
{
    TagTable tags;
    for (const char* const name : names)
        tags.append(tagOf(name));
    return tags;
}
