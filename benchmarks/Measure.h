#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

/// Counters of a measurement, in milliseconds: its quickest round, and what half and 99 of 100 rounds kept below.
constexpr const char* quickestCounter = "quickest_ms";
constexpr const char* medianCounter = "p50_ms";
constexpr const char* slowestCounter = "p99_ms";

using Seconds = std::chrono::duration<double>;

/// Time that `work` takes.
template <class W>
Seconds timeOf(W work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::steady_clock::now() - start;
}

/// Keeps the times of the rounds of one benchmark; its counters are set when it goes.
class Stopwatch
{
public:
    explicit Stopwatch(benchmark::State& benchmarkState) : state(benchmarkState) {}
    ~Stopwatch()
    {
        std::sort(times.begin(), times.end());
        set(quickestCounter, 0);
        set(medianCounter, 50);
        set(slowestCounter, 99);
    }
    Stopwatch(const Stopwatch&) = delete;
    Stopwatch& operator=(const Stopwatch&) = delete;

    void add(Seconds time)
    {
        state.SetIterationTime(time.count());
        times.push_back(time);
    }

private:
    void set(const char* counter, std::size_t percentile)
    {
        if (times.empty())
            return;
        const Seconds time = times[(times.size() - 1) * percentile / 100];
        state.counters[counter] = std::chrono::duration<double, std::milli>(time).count();
    }

    benchmark::State& state;
    std::vector<Seconds> times;
};

/// Measures `work` once in each round, after a first one that does not count: the memory it needs is in reach by then.
/// @param prepare  called before each round and not measured
template <class P, class W>
void measure(benchmark::State& state, P prepare, W work)
{
    prepare();
    work();
    Stopwatch stopwatch(state);
    for ([[maybe_unused]] auto round : state)
    {
        prepare();
        stopwatch.add(timeOf(work));
    }
}

template <class W>
void measure(benchmark::State& state, W work)
{
    measure(
        state, [] {}, work);
}
