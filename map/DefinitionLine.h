#pragma once

#include "map/RegisterMap.h"

#include <cstdint>
#include <string_view>
#include <variant>

/// What one line of a definition file says.

/// The word that says whether an object is locked.
constexpr std::string_view lockWord(bool locked)
{
    return locked ? "LOCKED" : "UNLOCKED";
}

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

/// Why a line describes no object; it is then dropped.
enum class LineFault : std::uint8_t
{
    FieldCount,    ///< it has neither 9, 7 nor 6 fields
    UnknownSpace,  ///< its first field names no register space
    DottedTagname, ///< its tagname holds a "." without ending in ".1"
    NoRegisters    ///< it is a STRING of no registers
};

/// The object that a line describes, or why it describes none.
using LineMeaning = std::variant<DefinitionObject, LineFault>;

/// Reads the fields of a line. Of several faults the first one in the order of the fields is told.
LineMeaning lineMeaning(const DefinitionFields& fields);
