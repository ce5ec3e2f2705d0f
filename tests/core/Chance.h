#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <random>
#include <span>
#include <utility>
#include <vector>

/// Repeatable chance for tests: the same seed gives the same picks everywhere, and so do the same bytes of a fuzzer.
class Chance
{
public:
    explicit Chance(std::uint32_t seed) : engine(seed) {}

    /// Chance that is made of bytes and is spent with them; from then on the first value of each range is picked.
    /// @param decisions  have to last as long as this and its copies
    explicit Chance(std::span<const std::uint8_t> decisions) : bytes(decisions), byBytes(true) {}

    /// True when there are no bytes left; never for a seed.
    bool isSpent() const { return byBytes && bytes.empty(); }

    /// A number of first..last.
    int pick(int first, int last)
    {
        const auto range = static_cast<std::uint32_t>(last - first) + 1;
        return first + static_cast<int>((byBytes ? nextBytes(range) : engine()) % range);
    }

    /// One of the given values.
    template <typename T>
    T oneOf(std::initializer_list<T> values)
    {
        return values.begin()[pick(0, static_cast<int>(values.size()) - 1)];
    }

    /// True in `percent` of a hundred cases.
    bool happens(int percent) { return pick(0, 99) < percent; }

    /// Puts values into any order.
    void shuffle(std::vector<int>& values)
    {
        for (std::size_t i = values.size(); i > 1; --i)
            std::swap(values[i - 1], values[static_cast<std::size_t>(pick(0, static_cast<int>(i) - 1))]);
    }

private:
    /// As few bytes as the range needs: what one of them decides is then what a fuzzer changes by changing it.
    std::uint32_t nextBytes(std::uint32_t range)
    {
        std::uint32_t number = 0;
        for (std::uint64_t reach = 1; reach < range && !bytes.empty(); reach <<= 8U)
        {
            number = number << 8U | bytes.front();
            bytes = bytes.subspan(1);
        }
        return number;
    }

    std::mt19937 engine;
    std::span<const std::uint8_t> bytes;
    bool byBytes = false;
};
