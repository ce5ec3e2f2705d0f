#include "text/FindBytes.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace
{

constexpr auto none = std::string_view::npos;

} // namespace

TEST(FindBytes, GivesTheFirstOccurrenceFromTheStartOn)
{
    EXPECT_EQ(findBytes("pump pump", "pump", 0), 0U);
    EXPECT_EQ(findBytes("pump pump", "pump", 1), 5U);
    EXPECT_EQ(findBytes("pump pump", "pump", 6), none);
    EXPECT_EQ(findBytes("pump", "pumps", 0), none);
}

TEST(FindBytes, EmptyPieceStandsEverywhere)
{
    EXPECT_EQ(findBytes("abc", "", 0), 0U);
    EXPECT_EQ(findBytes("abc", "", 3), 3U);
    EXPECT_EQ(findBytes("", "", 0), 0U);
}

TEST(FindBytes, NothingIsFoundBehindTheEnd)
{
    EXPECT_EQ(findBytes("abc", "c", 3), none);
    EXPECT_EQ(findBytes("abc", "bc", 100), none);
    EXPECT_EQ(findBytes("", "a", 0), none);
}

TEST(FindBytes, OccurrenceAtEveryPlaceIsFound)
{
    for (std::size_t place = 0; place + 3 <= 64; ++place)
    {
        std::string text(64, '.');
        text.replace(place, 3,
                     "a\xFF"
                     "c");
        EXPECT_EQ(findBytes(text,
                            "a\xFF"
                            "c",
                            0),
                  place);
        EXPECT_EQ(findBytes(text,
                            "a\xFF"
                            "c",
                            place),
                  place);
        EXPECT_EQ(findBytes(text,
                            "a\xFF"
                            "c",
                            place + 1),
                  none);
    }
}

TEST(FindBytes, AgreesWithTheStandardSearchOnRandomTexts)
{
    std::mt19937 random(4711);
    const auto randomText = [&random](std::size_t longest)
    {
        std::string text(random() % (longest + 1), 'a');
        for (char& c : text)
            c = "ab\x01\x80\xFF"[random() % 5];
        return text;
    };
    for (int round = 0; round < 20000; ++round)
    {
        const std::string text = randomText(60);
        const std::string piece = randomText(4);
        const std::size_t start = random() % 64;
        ASSERT_EQ(findBytes(text, piece, start), text.find(piece, start)) << text << "|" << piece << "|" << start;
    }
}
