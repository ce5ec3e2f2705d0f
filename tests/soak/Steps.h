#pragma once

#include "tests/soak/WorkedFrame.h"

#include <span>

/// What a step may do to the map. Marks of the validation are never looked at.
enum class MayChange
{
    Nothing,
    Locks,     ///< locks in the space shown, and nothing else
    Unlocked,  ///< the space shown, but no locked register that is used
    Unclaimed, ///< as Unlocked, except that an object erases all registers it counts, locked ones of another too
    AllSpaces  ///< as Unclaimed in the space shown; in the others it is not their own locks that count
};

/// Something that a user does.
struct Step
{
    const char* name;
    int weight; ///< how often it is done, beside the others
    MayChange mayChange;
    void (*prepare)(WorkedFrame& frame, Chance& chance); ///< selects what it works on; none when nothing is needed
    void (*run)(WorkedFrame& frame, Chance& chance);
    bool mayLeave = false; ///< the window may be gone after it
};

/// Everything that is done.
std::span<const Step> allSteps();

/// One of the steps, by their weights.
const Step& someStep(Chance& chance);
