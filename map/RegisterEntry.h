#pragma once

#include "map/DataType.h"
#include "text/InternedText.h"

#include <array>
#include <cstdint>
#include <type_traits>

/// One slot of a register space, that is one 16-bit register.
///
/// An object of N registers fills N consecutive slots that carry the same values; only `address` differs. The slot
/// whose `address` equals `startAddress` is the object's head, the others are its continuation slots.
/// Plain data without hidden padding: slots are copied and compared as memory.
struct RegisterEntry
{
    bool used = false;                   ///< belongs to an object; readers look here first
    bool locked = false;                 ///< locked by the user; a controller already relies on this register
    std::array<std::uint8_t, 2> fill1{}; ///< always zero
    std::uint32_t startAddress = 0;      ///< address of the object's head; the slot's own address when free
    std::uint32_t address = 0;           ///< the slot's own address, equal to its index in the space
    DataType type = DataType::Int16;     ///< data type of the object
    bool typeValid = true;               ///< validation: the type suits the database tag
    std::array<std::uint8_t, 2> fill2{}; ///< always zero
    std::uint32_t registerCount = 1;     ///< registers of the whole object; may run past the end of the space
    bool SwapBytes = false;              ///< swap the two bytes of each register
    bool SwapWords = false;              ///< swap the two registers of a 32-bit quantity
    bool SwapLongs = false;              ///< swap the two 32-bit halves of a 64-bit quantity
    bool write = false;                  ///< the Modbus master may write the object
    bool writeValid = true;              ///< validation: the database tag can take a write
    std::array<std::uint8_t, 3> fill3{}; ///< always zero
    std::int32_t tagIndex = -1;          ///< validation: index of the tag named `tagname`, -1 when there is none
    InternedText tagname;                ///< name of the published tag, without the write suffix
    InternedText description;            ///< free text

    friend bool operator==(const RegisterEntry&, const RegisterEntry&) = default;
};

static_assert(std::is_trivially_copyable_v<RegisterEntry>);
static_assert(std::has_unique_object_representations_v<RegisterEntry>);

/// The state of a slot that belongs to no object.
/// @param address  the slot's own address, 0..65535
constexpr RegisterEntry freeSlot(int address)
{
    RegisterEntry slot;
    slot.startAddress = static_cast<std::uint32_t>(address);
    slot.address = slot.startAddress;
    return slot;
}

/// True for the first register of an object and for a free slot, which is its own head.
constexpr bool isHead(const RegisterEntry& slot)
{
    return slot.address == slot.startAddress;
}

/// True for a register of an object that is not its first; a slot that is not used continues nothing.
constexpr bool isContinuation(const RegisterEntry& slot)
{
    return slot.used && !isHead(slot);
}

/// How many registers a command takes when it is given the first of them: those of the object, or one where the slot
/// is not used. A move leaves the count of the object in the slots that it vacates, and that count says nothing about
/// what stands there now.
constexpr std::uint32_t registersTaken(const RegisterEntry& slot)
{
    return slot.used ? slot.registerCount : 1;
}

/// A copy of a slot that stands elsewhere, keeping its place inside its object.
/// @param distance  registers to add to both addresses, modulo 2^32: towards address 0 by adding a negative number
constexpr RegisterEntry shifted(RegisterEntry slot, std::uint32_t distance)
{
    slot.startAddress += distance;
    slot.address += distance;
    return slot;
}

/// The byte-order flags as grids and exports show them: "B" or "-", "W" or "-", "L" or "-".
inline std::array<char, 3> byteOrderCharacters(const RegisterEntry& slot)
{
    return {slot.SwapBytes ? 'B' : '-', slot.SwapWords ? 'W' : '-', slot.SwapLongs ? 'L' : '-'};
}
