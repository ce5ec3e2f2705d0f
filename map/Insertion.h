#pragma once

#include "map/RegisterMap.h"

#include <span>

/// Makes room for registers that are to be written one after another from `target` on.
///
/// Used slots in the way are pushed down one place for each register, over the next free slots, keeping their order.
/// Room ends where pushing would meet a locked slot or the end of the space. A free slot that nothing has to be pushed
/// into counts as room even when it is locked.
/// Room for n registers before a run of m costs n + m.
/// @param target  0..65535; any other address has no room
/// @param count   registers wanted; below 1 makes none
/// @return registers that there is room for; the slots from `target` on still hold what stood there before and have to
///         be written, that many of them
int makeRoom(RegisterSlots& slots, int target, int count);

/// Writes registers one after another from `target` on, as many as `makeRoom` finds room for.
///
/// Each register keeps its place inside its object: only the difference of `address` and `startAddress` counts.
/// @param elements  registers to write, none of them a slot of `slots`
/// @param target    0..65535; any other address writes nothing
void insertRegisters(RegisterSlots& slots, std::span<const RegisterEntry> elements, int target);
