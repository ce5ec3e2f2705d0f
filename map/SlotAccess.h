#pragma once

#include "map/RegisterMap.h"

#include <cstddef>
#include <cstdint>

/// True for 0..65535.
constexpr bool isAddress(std::int64_t address)
{
    return address >= 0 && address <= lastAddress;
}

/// The slot at an address.
/// @param address  0..65535
inline RegisterEntry& slotAt(RegisterSlots& slots, int address)
{
    return slots[static_cast<std::size_t>(address)];
}

/// The slot at an address, for reading.
/// @param address  0..65535
inline const RegisterEntry& slotAt(const RegisterSlots& slots, int address)
{
    return slots[static_cast<std::size_t>(address)];
}

/// A copy of a slot that stands elsewhere, keeping its place inside its object.
/// @param distance  registers to add to both addresses, modulo 2^32: towards address 0 by adding a negative number
inline RegisterEntry shifted(RegisterEntry slot, std::uint32_t distance)
{
    slot.startAddress += distance;
    slot.address += distance;
    return slot;
}
