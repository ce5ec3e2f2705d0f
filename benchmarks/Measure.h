#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

/// Name of the counter that holds the quickest iteration of a measurement, in milliseconds.
constexpr const char* quickestCounter = "quickest_ms";

/// Measures `work` once per iteration, behind a first round that does not count: work and yardstick start alike, with
/// the memory they need in reach.
/// @param prepare  called in front of each round and not measured
template <class P, class W>
void measure(benchmark::State& state, P prepare, W work)
{
    prepare();
    work();
    using Milliseconds = std::chrono::duration<double, std::milli>;
    Milliseconds quickest = Milliseconds::max();
    for ([[maybe_unused]] auto iteration : state)
    {
        prepare();
        const auto start = std::chrono::steady_clock::now();
        work();
        const auto time = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(std::chrono::duration<double>(time).count());
        quickest = std::min<Milliseconds>(quickest, time);
    }
    state.counters[quickestCounter] = quickest.count();
}

template <class W>
void measure(benchmark::State& state, W work)
{
    measure(
        state, [] {}, work);
}
