#include "review/HeldRegisters.h"

#include <numeric>

namespace
{

/// True for a register of an object that begins inside the space; no other object can be named.
bool isHeld(const RegisterEntry& slot)
{
    return slot.used && slot.startAddress <= slot.address;
}

} // namespace

HeldRegisters::HeldRegisters(const RegisterSlots& slots) : begins(registersPerSpace + 1, 0)
{
    for (const RegisterEntry& slot : slots)
    {
        if (isHeld(slot))
            ++begins[slot.startAddress + 1];
    }
    std::partial_sum(begins.begin(), begins.end(), begins.begin());
    distances.resize(begins.back());
    std::vector<std::size_t> next = begins;
    for (const RegisterEntry& slot : slots)
    {
        if (isHeld(slot))
            distances[next[slot.startAddress]++] = slot.address - slot.startAddress;
    }
}

std::span<const std::uint32_t> HeldRegisters::of(std::uint32_t head) const
{
    return std::span(distances).subspan(begins[head], begins[head + 1] - begins[head]);
}

std::optional<std::uint32_t> firstHeldOnlyIn(std::span<const std::uint32_t> one, std::span<const std::uint32_t> other,
                                             std::uint32_t limit)
{
    auto at = other.begin();
    for (const std::uint32_t distance : one)
    {
        if (distance >= limit)
            return std::nullopt;
        while (at != other.end() && *at < distance)
            ++at;
        if (at == other.end() || *at != distance)
            return distance;
    }
    return std::nullopt;
}
