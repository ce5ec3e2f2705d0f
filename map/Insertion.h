#pragma once

#include "map/RegisterMap.h"

#include <span>

/// Writes registers one after another from `target` on, in front of what stands there.
///
/// Used slots in the way are pushed down one place for each register written, over the next free slots, keeping their
/// order. Writing ends, what is written so far stays, where pushing would meet a locked slot or the end of the space.
/// A free slot that nothing has to be pushed into is written over even when it is locked.
/// Each register keeps its place inside its object: only the difference of `address` and `startAddress` counts.
/// Inserting n registers in front of a run of m costs n + m.
/// @param elements  registers to write, none of them a slot of `slots`
/// @param target    0..65535; any other address writes nothing
void insertRegisters(RegisterSlots& slots, std::span<const RegisterEntry> elements, int target);
