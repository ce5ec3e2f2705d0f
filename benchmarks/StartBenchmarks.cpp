// Starting the program on the largest inputs, against a bare frame of the same toolkit.

#include "benchmarks/Benchmarks.h"
#include "benchmarks/ChildProcess.h"
#include "benchmarks/FullSize.h"
#include "benchmarks/Measure.h"
#include "benchmarks/ScratchFiles.h"
#include "benchmarks/Screen.h"
#include "map/DefinitionFile.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <thread>

namespace
{

/// What both programs paint empty parts of their grids with.
constexpr std::uint32_t gridBackground = 0x202020;

bool mostlyBackground(const std::uint32_t* first, const std::uint32_t* end)
{
    return std::count(first, end, gridBackground) * 2 > end - first;
}

/// True once a row in the middle of the screen shows the inside of both grids of a maximised window.
bool windowIsPainted()
{
    const std::vector<std::uint32_t> row = rowOfScreen(screenHeight() / 2);
    const auto* const middle = row.data() + row.size() / 2;
    return mostlyBackground(row.data(), middle) && mostlyBackground(middle, row.data() + row.size());
}

/// Every look at the screen takes time of its server, which the starting program needs.
void waitBeforeNextLook()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
}

/// Measures from the command to the first paint; sets the counter "rss_mb".
void startProgram(benchmark::State& state, const std::vector<std::string>& command)
{
    std::optional<ChildProcess> program;
    double residentMb = 0;
    const auto end = [&]
    {
        if (program)
            residentMb = std::max(residentMb, program->residentMb());
        program.reset();
    };
    measure(
        state,
        [&]
        {
            end();
            while (windowIsPainted())
                waitBeforeNextLook();
        },
        [&]
        {
            program.emplace(command);
            while (!windowIsPainted())
            {
                if (!program->isRunning())
                    return state.SkipWithError("the program has ended");
                waitBeforeNextLook();
            }
        });
    end();
    state.counters["rss_mb"] = residentMb;
}

void startOnLargestInputs(benchmark::State& state)
{
    const ScratchFolder folder;
    const auto database = folder.file("plant.json");
    const auto definition = folder.file("map.csv");
    RegisterMap map;
    fillWithObjects(map);
    writeInput(database, fullDatabaseJson());
    writeInput(definition, definitionText(map));
    startProgram(state, {TOLVANE_PROGRAM, "--json", database.string(), "--modbus", definition.string()});
}

void startBareFrame(benchmark::State& state)
{
    startProgram(state, {TOLVANE_BARE_FRAME});
}

} // namespace

void addStartBenchmarks(RatioTable& table)
{
    table.add({.work = "main window on the largest inputs",
               .yardstick = "a bare frame with two empty grids",
               .ratio = 2,
               .residentMb = 250},
              3, startOnLargestInputs, startBareFrame);
}
