#pragma once

#include "map/RegisterEntry.h"
#include "map/RegisterSpace.h"

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <type_traits>

/// The slots of one space, reached by address.
///
/// No slot outside 0..65535 exists and none is made up: asking for one is a mistake of the caller. Addresses that come
/// from a file, from a row or from arithmetic are tested with `contains` first.
/// Plain data like its slots: spaces are copied and compared as memory.
class RegisterSlots
{
public:
    using iterator = std::array<RegisterEntry, registersPerSpace>::iterator;
    using const_iterator = std::array<RegisterEntry, registersPerSpace>::const_iterator;

    /// Every slot free.
    RegisterSlots();

    /// True for 0..65535. Takes any integer that an address is computed in, so that none has to be narrowed first.
    static constexpr bool contains(std::int64_t address) { return address >= 0 && address <= lastAddress; }

    /// Number of slots, 65,536; as a signed number, because addresses are.
    static constexpr int size() { return registersPerSpace; }

    /// The slot at an address.
    /// @param address  0..65535, asserted
    RegisterEntry& operator[](int address)
    {
        assert(contains(address));
        return entries[static_cast<std::size_t>(address)];
    }

    /// The slot at an address, for reading.
    /// @param address  0..65535, asserted
    const RegisterEntry& operator[](int address) const
    {
        assert(contains(address));
        return entries[static_cast<std::size_t>(address)];
    }

    iterator begin() { return entries.begin(); }
    iterator end() { return entries.end(); }
    const_iterator begin() const { return entries.begin(); }
    const_iterator end() const { return entries.end(); }

    friend bool operator==(const RegisterSlots&, const RegisterSlots&) = default;

private:
    std::array<RegisterEntry, registersPerSpace> entries;
};

static_assert(std::is_trivially_copyable_v<RegisterSlots>);
static_assert(std::has_unique_object_representations_v<RegisterSlots>);

/// Frees the slots `first`..`first + count - 1` of a space, as far as they lie in it.
/// @param first  0..65535
/// @param count  registers, up to 4294967295; costs no more than the space is long
void clearSlots(RegisterSlots& slots, int first, std::uint32_t count);
