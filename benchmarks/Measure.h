#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

/// Counters of a measurement, in milliseconds: its quickest round, and what half and 99 of 100 rounds kept below.
constexpr const char* quickestCounter = "quickest_ms";
constexpr const char* medianCounter = "p50_ms";
constexpr const char* slowestCounter = "p99_ms";

/// Sets the counters of a measurement.
/// @param times  seconds of each round
inline void setTimeCounters(benchmark::State& state, std::vector<double> times)
{
    if (times.empty())
        return;
    std::sort(times.begin(), times.end());
    const auto milliseconds = [&](std::size_t percentile)
    { return 1000 * times[(times.size() - 1) * percentile / 100]; };
    state.counters[quickestCounter] = milliseconds(0);
    state.counters[medianCounter] = milliseconds(50);
    state.counters[slowestCounter] = milliseconds(99);
}

/// Measures `work` once in each round, after a first one that does not count: the memory it needs is in reach by then.
/// @param prepare  called before each round and not measured
template <class P, class W>
void measure(benchmark::State& state, P prepare, W work)
{
    prepare();
    work();
    std::vector<double> times;
    for ([[maybe_unused]] auto round : state)
    {
        prepare();
        const auto start = std::chrono::steady_clock::now();
        work();
        times.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        state.SetIterationTime(times.back());
    }
    setTimeCounters(state, times);
}
