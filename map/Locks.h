#pragma once

#include "map/RegisterMap.h"

#include <span>

/// Inverts the lock of every listed slot by itself, used or not; a slot listed twice keeps its lock.
/// @param addresses  those outside 0..65535 are passed over
void toggleLocks(RegisterSlots& slots, std::span<const int> addresses);
