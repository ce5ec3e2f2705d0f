#pragma once

#include "source/TagTable.h"

#include <initializer_list>

/// A table of tags of which only the names matter, in this order.
inline TagTable tableOf(std::initializer_list<const char*> names)
{
    TagTable tags;
    TagRecord tag;
    for (const char* const name : names)
    {
        tag.name = InternedText(name);
        tags.append(tag);
    }
    return tags;
}
