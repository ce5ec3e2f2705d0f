#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <random>
#include <utility>
#include <vector>

/// Repeatable chance for tests: the same seed gives the same picks everywhere.
class Chance
{
public:
    explicit Chance(std::uint32_t seed) : engine(seed) {}

    /// A number of first..last.
    int pick(int first, int last)
    {
        const auto range = static_cast<std::uint32_t>(last - first) + 1;
        return first + static_cast<int>(engine() % range);
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
    std::mt19937 engine;
};
