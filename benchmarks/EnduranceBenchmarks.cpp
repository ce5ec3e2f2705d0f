// What the program takes while nobody works with it, and what it keeps after long work.

#include "benchmarks/Benchmarks.h"
#include "benchmarks/DrivenFrame.h"
#include "benchmarks/FullSize.h"
#include "benchmarks/Measure.h"
#include "map/Validation.h"
#include "tests/core/Rehearsal.h"

#include <wx/evtloop.h>
#include <wx/grid.h>
#include <wx/timer.h>

#include <ctime>
#include <malloc.h>

namespace
{

constexpr int idleMilliseconds = 1000; // in which the errors are counted once

/// Milliseconds of processor time that the program has taken so far.
double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
}

/// Lets the program wait for events, as it does while its user looks away.
void waitIdly()
{
    wxEventLoop loop;
    wxTimer end;
    end.Bind(wxEVT_TIMER, [&loop](wxTimerEvent&) { loop.Exit(); });
    end.StartOnce(idleMilliseconds);
    loop.Run();
}

void beIdle(benchmark::State& state)
{
    FrameOnScreen frame(mapOfObjects());
    // The first count sets the label, and whatever has been begun is finished.
    waitIdly();
    int paintings = 0;
    for (wxGrid* const grid : {&frame->mapRows(), &frame->tagRows()})
    {
        grid->GetGridWindow()->Bind(wxEVT_PAINT,
                                    [&paintings](wxPaintEvent& event)
                                    {
                                        ++paintings;
                                        event.Skip();
                                    });
    }
    std::vector<double> seconds;
    for ([[maybe_unused]] auto round : state)
    {
        const double before = processorTime();
        waitIdly();
        seconds.push_back((processorTime() - before) / 1000);
        state.SetIterationTime(seconds.back());
    }
    setTimeCounters(state, seconds);
    if (paintings > 0)
        state.SkipWithError("something is painted although nothing has changed");
}

void countErrorsOnce(benchmark::State& state)
{
    FrameOnScreen frame(mapOfObjects());
    measure(
        state, [] {}, [&] { benchmark::DoNotOptimize(countErrors(frame->registers())); });
}

/// Megabytes that are taken from the heap at present.
double heapMb()
{
    constexpr double bytesPerMegabyte = 1024.0 * 1024.0;
    const struct mallinfo2 heap = ::mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd) / bytesPerMegabyte;
}

/// Gives commands by chance to map after map.
/// @param firstSeed  decides which, together with the number of the map
void giveCommands(Rehearsal& rehearsal, std::uint32_t firstSeed, int commands)
{
    constexpr int commandsPerMap = 30;
    for (int given = 0; given < commands; ++given)
    {
        const auto seed = firstSeed + static_cast<std::uint32_t>(given / commandsPerMap);
        if (given % commandsPerMap == 0)
            rehearsal.begin(Chance(seed), Chance(seed + 1'000'000));
        rehearsal.step();
    }
}

/// Sets the counter "grown_mb".
void giveManyCommands(benchmark::State& state)
{
    constexpr int some = 2000;
    constexpr int many = 20000;
    Rehearsal rehearsal;
    giveCommands(rehearsal, 1, some); // whatever is made at the first need is there then
    const double before = heapMb();
    std::vector<double> seconds;
    for ([[maybe_unused]] auto round : state)
    {
        const double start = processorTime();
        giveCommands(rehearsal, some, many);
        seconds.push_back((processorTime() - start) / 1000);
        state.SetIterationTime(seconds.back());
    }
    setTimeCounters(state, seconds);
    state.counters["grown_mb"] = heapMb() - before;
}

} // namespace

void addEnduranceBenchmarks(ResultTable& table)
{
    table.add({.work = "processor time of an idle second",
               .measurement = beIdle,
               .rounds = 3,
               .yardstick = "one count of the errors",
               .yardstickMeasurement = countErrorsOnce,
               .milliseconds = 5});
    table.add({.work = "20,000 commands by chance", .measurement = giveManyCommands, .rounds = 1, .grownMb = 0.1});
}
