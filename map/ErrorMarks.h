#pragma once

#include "map/RegisterEntry.h"

/// How many marks the last validation left on a slot: unknown tag, bad type, bad write.
/// @return 0..3 for a used slot, 0 for a free one
constexpr int errorMarks(const RegisterEntry& slot)
{
    if (!slot.used)
        return 0;
    return (slot.tagIndex == -1 ? 1 : 0) + (slot.typeValid ? 0 : 1) + (slot.writeValid ? 0 : 1);
}

/// True for a used slot that carries any mark.
constexpr bool hasError(const RegisterEntry& slot)
{
    return errorMarks(slot) > 0;
}
