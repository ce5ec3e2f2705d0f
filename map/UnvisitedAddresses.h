#pragma once

#include "map/RegisterSpace.h"

#include <cstddef>
#include <numeric>
#include <vector>

/// The addresses of a space that are still to be visited.
class UnvisitedAddresses
{
public:
    /// Calls `visit` with each of `first`..`end - 1` that no earlier call covered, ascending.
    ///
    /// What is covered is stepped over in one go: many calls with long, overlapping ranges cost hardly more than
    /// their number plus the length of the space.
    /// @param first  0 or above
    /// @param end    at most 65536; nothing happens when it is not above `first`
    template <typename Visit>
    void visit(int first, int end, Visit visit)
    {
        visitRuns(first, end,
                  [&visit](int runFirst, int runEnd)
                  {
                      for (int address = runFirst; address < runEnd; ++address)
                          visit(address);
                  });
    }

    /// The same for the runs of such addresses: `visit` gets the first address of each and the one after its last.
    template <typename Visit>
    void visitRuns(int first, int end, Visit visit)
    {
        if (first >= end)
            return;
        if (next.empty())
        {
            next.resize(registersPerSpace + 1);
            std::iota(next.begin(), next.end(), 0);
        }
        for (int address = unvisitedFrom(first); address < end;)
        {
            const int runFirst = address;
            while (address < end && nextFrom(address) == address)
                nextFrom(address++) = end;
            visit(runFirst, address);
            if (address < end)
                address = unvisitedFrom(address);
        }
    }

private:
    int& nextFrom(int address) { return next[static_cast<std::size_t>(address)]; }

    int unvisitedFrom(int address)
    {
        while (nextFrom(address) != address)
        {
            nextFrom(address) = nextFrom(nextFrom(address));
            address = nextFrom(address);
        }
        return address;
    }

    /// An address is unvisited when it leads to itself; any other leads to one nearer to the next unvisited one.
    std::vector<int> next;
};
