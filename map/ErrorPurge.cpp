#include "map/ErrorPurge.h"

#include "map/ErrorMarks.h"

void deleteErrorRegisters(RegisterMap& map)
{
    for (const RegisterSpace space : allSpaces)
    {
        for (int address = 0; address <= lastAddress; ++address)
        {
            if (hasError(map.slots(space)[address]))
                map.eraseObject(space, address);
        }
    }
}
