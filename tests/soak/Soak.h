#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

/// How long random steps are done, and which.
struct SoakPlan
{
    std::optional<int> steps;     ///< ends after so many; none goes by the time
    std::chrono::minutes time{0}; ///< when no steps are given
    std::uint32_t seed = 1;       ///< the same seed does the same steps
};

/// Works the window on the largest map as planned and prints what was done, how long it took and what grew.
/// @return false as soon as something does not hold that has to; seed, step and what is wrong are then printed
bool soak(const SoakPlan& plan);
