#pragma once

#include "map/RegisterSlots.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// Which registers each object of a space really holds: later objects may have taken some of those that it counts.
class HeldRegisters
{
public:
    /// Looks at every slot once; what becomes of the slots afterwards does not count.
    explicit HeldRegisters(const RegisterSlots& slots);

    /// The registers that are left to an object, as distances from its head, ascending: 0 for the head itself. None
    /// where no object begins.
    /// @param head  its address, 0..65535
    /// @return valid as long as this object
    std::span<const std::uint32_t> of(std::uint32_t head) const;

private:
    std::vector<std::size_t> begins;      ///< for each head, where its distances begin; one more for the end
    std::vector<std::uint32_t> distances; ///< of all objects, by head
};

/// The first register that an object holds in one state and not in the other.
/// @param one    what it holds there, as `HeldRegisters::of` gives it
/// @param other  what it holds in the other state
/// @param limit  distances from here on are not compared
/// @return its distance from the head, below `limit`; nothing when the other state has all of them
std::optional<std::uint32_t> firstHeldOnlyIn(std::span<const std::uint32_t> one, std::span<const std::uint32_t> other,
                                             std::uint32_t limit);
