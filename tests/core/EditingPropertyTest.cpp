#include "Rehearsal.h"

#include <gtest/gtest.h>

TEST(EditingProperty, EveryCommandEqualsItsLiteralStepsOnAnyMap)
{
    constexpr std::uint32_t sequences = 2500;
    constexpr int stepsPerSequence = 30;
    Rehearsal rehearsal;
    for (std::uint32_t seed = 1; seed <= sequences; ++seed)
    {
        rehearsal.begin(Chance(seed), Chance(seed + sequences));
        for (int step = 0; step < stepsPerSequence; ++step)
            ASSERT_EQ(rehearsal.step(), "") << "seed " << seed << ", step " << step;
        ASSERT_EQ(rehearsal.differenceAnywhere(), "") << "seed " << seed << ", at the end";
    }
}
