#pragma once

#include "map/RegisterMap.h"
#include "tests/soak/Steps.h"

#include <array>
#include <memory>
#include <string>

/// What has to hold whatever the user does.
class Invariants
{
public:
    Invariants();

    /// Remembers the map as it is before a step.
    void remember(const RegisterMap& map);

    /// Looks at the map and the window after a step.
    /// @return what does not hold; empty when everything does
    std::string broken(const RegisterMap& map, const WorkedFrame& frame, MayChange mayChange) const;

private:
    std::string changedWrongly(const RegisterMap& map, RegisterSpace space, MayChange mayChange) const;
    const RegisterSlots& slotsBefore(RegisterSpace space) const { return (*before)[static_cast<std::size_t>(space)]; }

    std::unique_ptr<std::array<RegisterSlots, spaceCount>> before;
    RegisterSpace spaceBefore = RegisterSpace::Holding;
};
