#include "review/LineOwners.h"

#include "map/UnvisitedAddresses.h"

LineOwners::LineOwners(const PlacedLines& lines)
{
    for (const RegisterSpace space : allSpaces)
        takeSpace(space, lines);
}

void LineOwners::takeSpace(RegisterSpace space, const PlacedLines& lines)
{
    auto& owner = owners[static_cast<std::size_t>(space)];
    owner.assign(registersPerSpace, none);
    UnvisitedAddresses free;
    std::int64_t named = 0;
    std::int64_t owned = 0;
    // From the last line to the first, so that the first to come keeps a register.
    for (std::size_t i = lines.size(); i-- > 0;)
    {
        const DefinitionObject& object = lines[i].object;
        if (object.space != space || object.firstAddress() >= object.endAddress())
            continue;
        named += object.endAddress() - object.firstAddress();
        free.visit(object.firstAddress(), object.endAddress(),
                   [&](int address)
                   {
                       owner[static_cast<std::size_t>(address)] = static_cast<std::int32_t>(i);
                       ++owned;
                   });
    }
    overlapping[static_cast<std::size_t>(space)] = named > owned;
}
