#pragma once

#include "review/PlacedLine.h"

#include <array>
#include <cstdint>
#include <vector>

/// Which line of a file each register comes from: of several that name it, the last one.
class LineOwners
{
public:
    /// Nobody.
    static constexpr std::int32_t none = -1;

    explicit LineOwners(const PlacedLines& lines);

    /// The index of the line in the list, or `none`.
    /// @param address  0..65535
    std::int32_t at(RegisterSpace space, int address) const
    {
        return owners[static_cast<std::size_t>(space)][static_cast<std::size_t>(address)];
    }

    /// True when two lines of a space name the same register.
    bool hasOverlaps(RegisterSpace space) const { return overlapping[static_cast<std::size_t>(space)]; }

private:
    void takeSpace(RegisterSpace space, const PlacedLines& lines);

    std::array<std::vector<std::int32_t>, spaceCount> owners;
    std::array<bool, spaceCount> overlapping{};
};
