#pragma once

#include "map/RegisterSpace.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

/// The texts of a map whose lines give no length and whose tags are not known either: nobody knows how long they are.
class UnsizedTexts
{
public:
    /// Says of the object that begins at an address whether it is one; the last line that begins there counts.
    /// @param head  its address, 0..65535
    void set(RegisterSpace space, int head, bool unsized)
    {
        std::vector<bool>& heads = spaces[static_cast<std::size_t>(space)];
        if (heads.empty() && !unsized)
            return;
        heads.resize(registersPerSpace);
        heads[static_cast<std::size_t>(head)] = unsized;
    }

    /// True when the length of the object that begins at an address is not known.
    /// @param head  its address, 0..65535
    bool contains(RegisterSpace space, int head) const
    {
        const std::vector<bool>& heads = spaces[static_cast<std::size_t>(space)];
        return !heads.empty() && heads[static_cast<std::size_t>(head)];
    }

    /// True when there is none.
    bool isEmpty() const
    {
        for (const std::vector<bool>& heads : spaces)
        {
            if (std::ranges::find(heads, true) != heads.end())
                return false;
        }
        return true;
    }

private:
    std::array<std::vector<bool>, spaceCount> spaces; ///< empty where there is none
};
