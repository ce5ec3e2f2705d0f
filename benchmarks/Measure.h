#pragma once

#include <benchmark/benchmark.h>

#include <chrono>

/// Measures `work` once per iteration, behind a first round that does not count: work and yardstick start alike, with
/// the memory they need in reach.
/// @param prepare  called in front of each round and not measured
template <class P, class W>
void measure(benchmark::State& state, P prepare, W work)
{
    prepare();
    work();
    for ([[maybe_unused]] auto iteration : state)
    {
        prepare();
        const auto start = std::chrono::steady_clock::now();
        work();
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}

template <class W>
void measure(benchmark::State& state, W work)
{
    measure(
        state, [] {}, work);
}
