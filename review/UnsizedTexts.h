#pragma once

#include "map/DefinitionReader.h"
#include "map/RegisterSpace.h"

#include <array>
#include <bitset>

/// The texts of a map whose lines give no length and whose tags are not known either: nobody knows how long they are.
class UnsizedTexts
{
public:
    /// Takes note of the object that a line describes, if any. Of several that begin at the same address, the last one
    /// taken counts.
    /// @param line  as the reader tells it
    void take(const DefinitionFileLine& line);

    /// True when the length of the object that begins at an address is not known.
    /// @param head  its address, 0..65535
    bool contains(RegisterSpace space, int head) const
    {
        return spaces[static_cast<std::size_t>(space)].test(static_cast<std::size_t>(head));
    }

    /// True when there is none.
    bool isEmpty() const;

private:
    std::array<std::bitset<registersPerSpace>, spaceCount> spaces; ///< one bit for each address
};
