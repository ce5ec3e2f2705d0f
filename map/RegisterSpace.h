#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

/// The four Modbus register spaces, in the order of the definition file and of every walk over the whole map.
enum class RegisterSpace : std::uint8_t
{
    Coil,
    Input,
    Status,
    Holding
};

/// Registers in one space; valid addresses are 0..65535.
#ifndef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
constexpr int registersPerSpace = 65536;
#else
// A fuzzer sets up and looks at every slot for each of its inputs, and its short inputs are to reach the ends of
// spaces.
constexpr int registersPerSpace = 1024;
#endif

/// The highest register address of a space.
constexpr int lastAddress = registersPerSpace - 1;

/// Number of register spaces.
constexpr int spaceCount = 4;

/// Every space in index order.
constexpr std::array<RegisterSpace, spaceCount> allSpaces{RegisterSpace::Coil, RegisterSpace::Input,
                                                          RegisterSpace::Status, RegisterSpace::Holding};

/// The name shown for a space.
/// @param index  0..3; any other index yields "Unkown"
std::string_view spaceDisplayName(int index);

/// The upper-case word for a space in the definition file and in exports.
std::string_view spaceKeyword(RegisterSpace space);

/// The space of a definition file keyword; compared exactly, letter case and blanks included.
std::optional<RegisterSpace> spaceFromKeyword(std::string_view keyword);
