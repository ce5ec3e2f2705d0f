#pragma once

/// Byte order that objects made from database tags start with: one set of flags for whole numbers, one for floats.
struct DefaultByteOrder
{
    bool intSwapBytes = false;
    bool intSwapWords = false;
    bool intSwapLongs = false;
    bool floatSwapBytes = false;
    bool floatSwapWords = false;
    bool floatSwapLongs = false;

    /// The byte order that the command line asks for; whole numbers start unswapped.
    /// @param flags  bit 1 swaps bytes, bit 2 words, bit 3 longs of floats; the other bits mean nothing
    static constexpr DefaultByteOrder fromSwapFlags(long flags)
    {
        DefaultByteOrder order;
        order.floatSwapBytes = (flags & 2) != 0;
        order.floatSwapWords = (flags & 4) != 0;
        order.floatSwapLongs = (flags & 8) != 0;
        return order;
    }

    friend bool operator==(const DefaultByteOrder&, const DefaultByteOrder&) = default;
};
