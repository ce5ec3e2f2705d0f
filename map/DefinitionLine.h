#pragma once

#include "map/RegisterMap.h"

#include <cstdint>
#include <optional>
#include <string_view>

/// What one line of a definition file says.

/// The nine fields of a definition line, as texts.
struct DefinitionFields
{
    std::string_view space;       ///< "COIL", "INPUT", "STATUS" or "HOLDING"
    std::string_view address;     ///< head's address, a base-10 integer
    std::string_view order;       ///< any of "BYTES", "WORDS", "LONGS" anywhere in it
    std::string_view type;        ///< type name
    std::string_view tagname;     ///< tagname, with ".1" after it when the master may write
    std::string_view description; ///< read up to its first "{"
    std::string_view count;       ///< registers of a STRING, a base-10 integer
    std::string_view lock;        ///< locked when it begins with "LOCKED"
    std::string_view status;      ///< written for people, never read
};

/// The object that a definition line describes; its texts are parts of the line.
struct DefinitionObject
{
    RegisterSpace space = RegisterSpace::Coil;
    DataType type = DataType::Int16;
    bool locked = false;
    bool SwapBytes = false; ///< set where the line names it, else left as the slots have it; the other two alike
    bool SwapWords = false;
    bool SwapLongs = false;
    bool write = false;
    std::int32_t start = 0; ///< address of the head, inside the space or not
    std::int32_t count = 0; ///< registers, 1 or more
    std::string_view tagname;
    std::string_view description;

    /// The first register of the object that lies in the space; not below `endAddress` when none does.
    int firstAddress() const;

    /// The address after the last register of the object that lies in the space, at most 65536.
    int endAddress() const;
};

/// Reads the fields of a line.
/// @return nothing when the line is to be dropped: its space is unknown, its tagname holds a "." without ending in
///         ".1", or its object has no registers
std::optional<DefinitionObject> describedObject(const DefinitionFields& fields);
