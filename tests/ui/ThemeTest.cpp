// The colours of the cells, each as its meaning asks for.

#include "ui/Theme.h"

#include "map/MapRow.h"
#include "source/TagRow.h"
#include "tests/ui/Contrast.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

TEST(Theme, EveryMeaningOfAMapCellHasItsColour)
{
    const std::vector<std::pair<MapTone, Rgb>> colours{
        {MapTone::Plain, {192, 192, 192}},  {MapTone::Sound, {220, 220, 220}},
        {MapTone::Error, {255, 0, 0}},      {MapTone::Warning, {255, 255, 0}},
        {MapTone::Lock, {255, 0, 0}},       {MapTone::Writable, {255, 150, 0}},
        {MapTone::ReadOnly, {217, 255, 0}}, {MapTone::Continuation, {120, 120, 200}},
        {MapTone::Free, {80, 80, 80}}};
    for (const auto& [tone, colour] : colours)
        EXPECT_EQ(theme::cellColour(tone), colour) << static_cast<int>(tone);
}

TEST(Theme, EveryMeaningOfATagCellHasItsColour)
{
    const std::vector<std::pair<TagTone, Rgb>> colours{
        {TagTone::Plain, {192, 192, 192}}, {TagTone::Integer, {128, 128, 0}},       {TagTone::Float, {68, 128, 128}},
        {TagTone::String, {0, 128, 0}},    {TagTone::UnknownType, {255, 255, 255}}, {TagTone::Flags, {255, 217, 0}}};
    for (const auto& [tone, colour] : colours)
        EXPECT_EQ(theme::cellColour(tone), colour) << static_cast<int>(tone);
}

TEST(Theme, ContrastOfBlackAndWhiteIs21)
{
    EXPECT_NEAR(contrast({0, 0, 0}, {255, 255, 255}), 21, 0.01);
    EXPECT_NEAR(contrast({255, 255, 255}, {0, 0, 0}), 21, 0.01);
    EXPECT_NEAR(contrast({51, 153, 255}, {51, 153, 255}), 1, 0.01);
}

TEST(Theme, TextsOnTheSelectionCanBeRead)
{
    EXPECT_GE(contrast(theme::selectionText, theme::selection), 4.5);
    EXPECT_EQ(theme::selection, (Rgb{51, 153, 255}));
}
