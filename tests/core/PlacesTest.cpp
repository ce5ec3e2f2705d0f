#include "text/Places.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

std::vector<std::size_t> placesOf(char sought, std::string_view text)
{
    std::vector<std::size_t> places;
    forEachPlaceOf(sought, text, [&places](std::size_t place) { places.push_back(place); });
    return places;
}

} // namespace

TEST(Places, AreToldFirstToLast)
{
    EXPECT_EQ(placesOf(',', "a,b,,12345678,,"), (std::vector<std::size_t>{1, 3, 4, 13, 14}));
    EXPECT_EQ(placesOf(',', ""), std::vector<std::size_t>{});
    EXPECT_EQ(placesOf(',', ",,,,,,,,").size(), 8U);
}

// Eight characters are looked at together, so each of their places is tried, beside each other character.
TEST(Places, NeighboursAreNotMistakenForTheCharacter)
{
    for (int other = 0; other < 256; ++other)
    {
        if (other == ',')
            continue;
        for (std::size_t place = 0; place < 20; ++place)
        {
            std::string text(20, static_cast<char>(other));
            EXPECT_EQ(placesOf(',', text), std::vector<std::size_t>{});
            text[place] = ',';
            EXPECT_EQ(placesOf(',', text), std::vector<std::size_t>{place}) << other;
        }
    }
}
