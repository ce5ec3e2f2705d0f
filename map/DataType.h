#pragma once

#include <array>
#include <cstdint>
#include <string_view>

/// What a register object holds. A stored code outside these five is possible and prints as "UNKOWN".
enum class DataType : std::uint8_t
{
    Int16,
    Int32,
    Float,
    Double,
    String
};

/// Every data type, in code order; the order in which the register editor offers them.
constexpr std::array<DataType, 5> allDataTypes{DataType::Int16, DataType::Int32, DataType::Float, DataType::Double,
                                               DataType::String};

/// The name of a type: "INT16", "INT32", "FLOAT", "DOUBLE", "STRING", or "UNKOWN" for any other code.
std::string_view typeName(DataType type);

/// The type of a name, compared exactly and case-sensitively; any other text is INT16.
DataType typeFromName(std::string_view name);

/// Registers that an object of the named type takes.
/// @param name        a type name; an unknown one counts as one register
/// @param lengthText  registers of a STRING, read as a base-10 integer; ignored for the other types
/// @return registers; below 1 (a STRING of no length) means that there is nothing to place
std::int32_t registerCountFor(std::string_view name, std::string_view lengthText);

/// Registers that a text of `characters` bytes takes: two characters a register, rounded up.
constexpr std::uint32_t registersForString(std::uint32_t characters)
{
    return (characters + 1) / 2;
}
