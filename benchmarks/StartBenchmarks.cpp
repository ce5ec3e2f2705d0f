// Starting the program, against a bare frame of the same toolkit.

#include "benchmarks/Benchmarks.h"
#include "benchmarks/FullSize.h"
#include "benchmarks/Measure.h"
#include "benchmarks/ScratchFolder.h"
#include "tests/e2e/PrivateScreen.h"
#include "tests/e2e/Process.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <thread>

namespace
{

/// What both programs paint empty parts of their grids with.
constexpr Rgb gridBackground{32, 32, 32};

/// Whether a part of a one-pixel row of the screen shows mostly an empty grid.
bool mostlyBackground(const Picture& row, int first, int end)
{
    int count = 0;
    for (int x = first; x < end; ++x)
        count += row.at(x, 0) == gridBackground ? 1 : 0;
    return count * 2 > end - first;
}

/// True once a row in the middle of the screen shows the inside of both grids of a maximised window.
bool windowIsPainted(const PrivateScreen& screen)
{
    const Rectangle all = screen.bounds();
    const Picture row = screen.look({0, all.height / 2, all.width, 1});
    return mostlyBackground(row, 0, all.width / 2) && mostlyBackground(row, all.width / 2, all.width);
}

/// Every look at the screen takes time of its server, which the starting program needs.
void waitBeforeNextLook()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
}

/// Megabytes of memory that a process holds at present.
double residentMb(const Process& process)
{
    constexpr double kilobytesPerMegabyte = 1024;
    const std::string label = "VmRSS:";
    std::ifstream status("/proc/" + std::to_string(process.id()) + "/status");
    for (std::string line; std::getline(status, line);)
    {
        if (line.starts_with(label))
            return std::atof(line.c_str() + label.size()) / kilobytesPerMegabyte;
    }
    return 0;
}

/// Measures from the command to the first paint; sets the counter "rss_mb".
void startProgram(benchmark::State& state, const char* program, const std::vector<std::string>& arguments)
{
    const PrivateScreen screen;
    std::optional<Process> process;
    double resident = 0;
    const auto end = [&]
    {
        if (process)
            resident = std::max(resident, residentMb(*process));
        process.reset();
    };
    measure(
        state,
        [&]
        {
            end();
            while (windowIsPainted(screen))
                waitBeforeNextLook();
        },
        [&]
        {
            process.emplace(program, arguments, std::map<std::string, std::string>{}, "/dev/null");
            while (!windowIsPainted(screen))
            {
                if (process->exitCode())
                    return state.SkipWithError("the program has ended");
                waitBeforeNextLook();
            }
        });
    end();
    state.counters["rss_mb"] = resident;
}

/// Measures starting the program on files of these texts.
Measurement startingOn(const std::string& database, const std::string& map)
{
    return [=](benchmark::State& state)
    {
        const ScratchFolder folder;
        startProgram(state, TOLVANE_PROGRAM,
                     {"--json", folder.input("plant.json", database).string(), "--modbus",
                      folder.input("map.csv", map).string()});
    };
}

void startBareFrame(benchmark::State& state)
{
    startProgram(state, TOLVANE_BARE_FRAME, {});
}

} // namespace

void addStartBenchmarks(ResultTable& table)
{
    const auto add = [&](Row row)
    {
        row.rounds = 5;
        row.yardstick = "a bare frame with two empty grids";
        row.yardstickMeasurement = startBareFrame;
        table.add(row);
    };
    add({.work = "main window on the largest inputs",
         .measurement = startingOn(fullDatabaseJson(), mapOfObjects()),
         .ratio = 1.5,
         .residentMb = 90});
    add({.work = "main window on nearly empty files",
         .measurement = startingOn(R"({"database_groups": [], "structure": [{"lable": "Plant", "dbprefix": ""}],
                                       "database": [{"Name": "PUMP_RUN", "Type": "Integer", "Size": 2}]})",
                                   "HOLDING,00010,NONE,INT16,PUMP_RUN,,1,UNLOCKED,OK\n"),
         .ratio = 1.25});
}
