#pragma once

#include "map/RegisterMap.h"

/// Erases every register of the four spaces that carries an error mark, going by the marks as they stand.
///
/// Goes through `RegisterMap::eraseObject`, which judges by the slot of the same address in the current space: in the
/// other spaces it is that slot's lock, place and count that decide what is erased.
void deleteErrorRegisters(RegisterMap& map);
