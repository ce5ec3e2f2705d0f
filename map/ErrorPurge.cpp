#include "map/ErrorPurge.h"

#include "map/ErrorMarks.h"

// Looks wrong and is required: the slot in error is found in the space being walked, while `eraseObject` goes by the
// slot of the same address in the space being shown. A purge of all spaces therefore spares what that slot's lock
// covers, and clears a continuation slot of the shown space in place of the one in error.
void deleteErrorRegisters(RegisterMap& map)
{
    for (const RegisterSpace space : allSpaces)
    {
        for (int address = 0; address <= lastAddress; ++address)
        {
            // Read anew for each address: erasing a head has freed the slots that come after it.
            if (hasError(map.slots(space)[address]))
                map.eraseObject(space, address);
        }
    }
}
