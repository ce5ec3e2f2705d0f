#include "map/UnvisitedAddresses.h"

#include "tests/core/Chance.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>
#include <vector>

namespace
{

std::vector<int> visited(UnvisitedAddresses& addresses, int first, int end)
{
    std::vector<int> result;
    addresses.visit(first, end, [&](int address) { result.push_back(address); });
    return result;
}

} // namespace

TEST(UnvisitedAddresses, AreVisitedInAscendingOrder)
{
    UnvisitedAddresses addresses;
    EXPECT_EQ(visited(addresses, 3, 6), (std::vector{3, 4, 5}));
}

TEST(UnvisitedAddresses, AreVisitedOnce)
{
    UnvisitedAddresses addresses;
    visited(addresses, 3, 6);
    EXPECT_EQ(visited(addresses, 2, 8), (std::vector{2, 6, 7}));
    EXPECT_EQ(visited(addresses, 0, 10), (std::vector{0, 1, 8, 9}));
    EXPECT_TRUE(visited(addresses, 0, 10).empty());
}

TEST(UnvisitedAddresses, WholeSpaceIsCovered)
{
    UnvisitedAddresses addresses;
    EXPECT_EQ(visited(addresses, 65535, 65536), (std::vector{65535}));
    EXPECT_EQ(visited(addresses, 0, 65536).size(), 65535U);
    EXPECT_TRUE(visited(addresses, 0, 65536).empty());
    EXPECT_TRUE(visited(addresses, 65535, 65536).empty());
}

TEST(UnvisitedAddresses, EmptyRangeVisitsNothing)
{
    UnvisitedAddresses addresses;
    EXPECT_TRUE(visited(addresses, 5, 5).empty());
    EXPECT_TRUE(visited(addresses, 6, 5).empty());
    EXPECT_TRUE(visited(addresses, 65536, 65536).empty());
    EXPECT_TRUE(visited(addresses, 0, 0).empty());
    EXPECT_TRUE(visited(addresses, 0, -5).empty());
    EXPECT_TRUE(visited(addresses, 2147483647, 65536).empty());
    EXPECT_EQ(visited(addresses, 4, 7), (std::vector{4, 5, 6}));
}

TEST(UnvisitedAddresses, AnyRangesTogetherVisitWhatTheyCover)
{
    for (std::uint32_t seed = 0; seed < 50; ++seed)
    {
        Chance chance(seed);
        UnvisitedAddresses addresses;
        std::set<int> open;
        for (int address = 0; address < 300; ++address)
            open.insert(address);
        for (int call = 0; call < 100; ++call)
        {
            const int first = chance.pick(0, 299);
            const int end = first + chance.pick(0, std::min(300 - first, 40));
            const std::vector<int> expected(open.lower_bound(first), open.lower_bound(end));
            ASSERT_EQ(visited(addresses, first, end), expected) << "seed " << seed;
            open.erase(open.lower_bound(first), open.lower_bound(end));
        }
    }
}

TEST(UnvisitedAddresses, RunsAreWhatEarlierCallsHaveLeft)
{
    UnvisitedAddresses addresses;
    const auto runs = [&addresses](int first, int end)
    {
        std::vector<std::pair<int, int>> result;
        addresses.visitRuns(first, end, [&](int runFirst, int runEnd) { result.emplace_back(runFirst, runEnd); });
        return result;
    };
    using Runs = std::vector<std::pair<int, int>>;
    EXPECT_EQ(runs(10, 12), (Runs{{10, 12}}));
    EXPECT_EQ(runs(14, 15), (Runs{{14, 15}}));
    EXPECT_EQ(runs(8, 20), (Runs{{8, 10}, {12, 14}, {15, 20}}));
    EXPECT_EQ(runs(0, registersPerSpace), (Runs{{0, 8}, {20, registersPerSpace}}));
    EXPECT_EQ(runs(0, registersPerSpace), Runs{});
    EXPECT_EQ(runs(5, 5), Runs{});
}
