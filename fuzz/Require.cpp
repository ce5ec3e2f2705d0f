#include "fuzz/Require.h"

#include <cstdio>
#include <cstdlib>

void require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

void requireSoundSlots(const RegisterMap& map)
{
    for (const RegisterSpace space : allSpaces)
    {
        std::uint32_t address = 0;
        for (const RegisterEntry& slot : map.slots(space))
            require(slot.address == address++, "a slot's address is its place in the space");
    }
}
