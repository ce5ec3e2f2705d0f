#include "map/WrittenObjects.h"

#include "tests/core/MapBuilder.h"

#include <gtest/gtest.h>

TEST(WrittenObjects, RoomIsMadeForTheTextsOfAllThatAFileHasALineForAndLittleMore)
{
    constexpr std::size_t objects = 100;
    const std::string name(1000, 'T');
    const auto map = std::make_unique<RegisterMap>();
    for (std::size_t i = 0; i < objects; ++i)
        place(map->slots(RegisterSpace::Input), static_cast<int>(10 * i), registerOf(name, 10));
    std::string text;
    reserveLines(text, *map);
    const std::size_t length = objects * (name.size() + ("about " + name).size());
    EXPECT_GE(text.capacity(), length);
    EXPECT_LT(text.capacity(), length + length / 10);
}
