#include "map/Locks.h"

void toggleLocks(RegisterSlots& slots, std::span<const int> addresses)
{
    for (const int address : addresses)
    {
        if (RegisterSlots::contains(address))
            slots[address].locked = !slots[address].locked;
    }
}
