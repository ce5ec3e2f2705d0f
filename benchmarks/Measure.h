#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <optional>
#include <stdexcept>

/// Name of the counter that holds the quickest iteration of a measurement, in milliseconds.
constexpr const char* quickestCounter = "quickest_ms";

using Seconds = std::chrono::duration<double>;

/// Time that `work` takes.
template <class W>
Seconds timeOf(W work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::steady_clock::now() - start;
}

/// Lets `round` run in a process of its own, a copy of this one, and end with it.
/// @param round  returns a time
/// @return that time; nothing when the process ended otherwise
std::optional<Seconds> inProcessOfItsOwn(const std::function<Seconds()>& round);

/// Keeps the times of the iterations of one benchmark.
class Stopwatch
{
public:
    explicit Stopwatch(benchmark::State& benchmarkState) : state(benchmarkState) {}
    ~Stopwatch() { state.counters[quickestCounter] = std::chrono::duration<double, std::milli>(quickest).count(); }
    Stopwatch(const Stopwatch&) = delete;
    Stopwatch& operator=(const Stopwatch&) = delete;

    void add(Seconds time)
    {
        state.SetIterationTime(time.count());
        quickest = std::min(quickest, time);
    }

private:
    benchmark::State& state;
    Seconds quickest = Seconds::max();
};

/// Measures `work` once per iteration, behind a first round that does not count: work and yardstick start alike, with
/// the memory they need in reach.
/// @param prepare  called in front of each round and not measured
template <class P, class W>
void measure(benchmark::State& state, P prepare, W work)
{
    prepare();
    work();
    Stopwatch stopwatch(state);
    for ([[maybe_unused]] auto iteration : state)
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

/// Measures `work` as `measure` does, each iteration with its first round in a process of its own.
///
/// Texts that were made once stay for the life of a process; work that makes many would slow down from round to round.
/// @param prepare    called in front of each round and not measured
/// @param succeeded  asked at the end whether the work was done
template <class P, class W, class S>
void measureApart(benchmark::State& state, P prepare, W work, S succeeded)
{
    Stopwatch stopwatch(state);
    for ([[maybe_unused]] auto iteration : state)
    {
        const auto time = inProcessOfItsOwn(
            [&]
            {
                prepare();
                work();
                prepare();
                const Seconds taken = timeOf(work);
                return succeeded() ? taken : throw std::runtime_error("the work was not done");
            });
        if (!time)
            return state.SkipWithError("the work was not done");
        stopwatch.add(*time);
    }
}
