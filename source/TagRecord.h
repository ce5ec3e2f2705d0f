#pragma once

#include "text/InternedText.h"

#include <cstdint>

/// What a tag holds, as the database's "Type" word says. A code outside these three stands for no known word.
enum class TagType : std::uint8_t
{
    Integer, ///< "Integer"
    Numeric, ///< "Numeric", shown as "Float"
    String   ///< "String"
};

/// One tag of the tag database. The value-initialised record is an unused one: no name, type code 0, no elements.
struct TagRecord
{
    InternedText name;               ///< full tag name
    InternedText description;        ///< free text
    TagType type = TagType::Integer; ///< type code
    std::uint8_t size = 0;           ///< characters of a String tag; the low 8 bits of the database's figure
    std::int32_t elements = 0;       ///< the master can write a tag that has 2 or more
    std::int32_t attributes = 0;     ///< kept as read
    std::uint32_t groups = 0;        ///< bit set of the groups that the tag belongs to
};
