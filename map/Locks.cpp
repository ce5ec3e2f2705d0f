#include "map/Locks.h"

#include "map/SlotAccess.h"

void toggleLocks(RegisterSlots& slots, std::span<const int> addresses)
{
    for (const int address : addresses)
    {
        if (isAddress(address))
            slotAt(slots, address).locked = !slotAt(slots, address).locked;
    }
}
