#include "map/Locks.h"

void toggleLocks(RegisterSlots& slots, std::span<const int> addresses)
{
    for (const int address : addresses)
    {
        // Each by itself, so that an address listed twice is as it was; nothing unlocks a mixed selection as a whole.
        if (RegisterSlots::contains(address))
            slots[address].locked = !slots[address].locked;
    }
}
