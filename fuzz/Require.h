#pragma once

#include "map/RegisterMap.h"

/// Ends the program when something does not hold; the input that led there is then the finding.
/// @param what  what should have held, in words
void require(bool holds, const char* what);

/// Requires what holds for every map, whatever the file it came from: each slot knows its own address.
void requireSoundSlots(const RegisterMap& map);
