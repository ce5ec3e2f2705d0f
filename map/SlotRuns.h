#pragma once

#include "map/RegisterSlots.h"

#include <cstdint>
#include <vector>

/// What the slots of a space held at one moment, in a part of their memory: slots that differ by their place alone are
/// kept once. A stretch of free slots is one such run, and so are the registers of an object.
class SlotRuns
{
public:
    /// Those of a space without an object.
    SlotRuns() : runs{{freeSlot(0), 1, registersPerSpace}} {}

    /// @throws std::bad_alloc when there is not enough memory
    explicit SlotRuns(const RegisterSlots& slots);

    /// True when every field of every slot is what it was.
    bool match(const RegisterSlots& slots) const;

private:
    /// Slots that follow each other.
    struct Run
    {
        RegisterEntry first;
        std::uint32_t startStep = 0; ///< by which the start address grows from slot to slot, modulo 2^32
        std::uint32_t length = 1;    ///< slots

        /// Whether the slot at a place of the run is, or would be, this one.
        bool has(const RegisterEntry& slot, std::uint32_t place) const;
    };

    static bool extend(Run& run, const RegisterEntry& slot);

    std::vector<Run> runs;
};
