// The program without windows, from its start to its exit.

#include "benchmarks/Benchmarks.h"
#include "benchmarks/FullSize.h"
#include "benchmarks/Measure.h"
#include "benchmarks/ScratchFolder.h"
#include "map/RegisterSpace.h"
#include "tests/e2e/Process.h"

#include <sys/wait.h>

namespace
{

/// Runs the program to its end, with its results in a file.
/// @return its exit code
int run(const ScratchFolder& folder, const std::string& arguments)
{
    const std::string command =
        "cd " + folder.file("").string() + " && exec " TOLVANE_MAP " " + arguments + " >results";
    Process process("/bin/sh", {"-c", command}, {}, "/dev/null");
    siginfo_t ended{};
    ::waitid(P_PID, static_cast<id_t>(process.id()), &ended, WEXITED | WNOWAIT);
    return process.exitCode().value_or(-1);
}

/// A map with the objects of two spaces exchanged: all of them have moved.
std::string mapOfMovedObjects()
{
    std::string text = mapOfObjects();
    const std::string input(spaceKeyword(RegisterSpace::Input));
    const std::string holding(spaceKeyword(RegisterSpace::Holding));
    for (std::size_t line = 0; line < text.size(); line = text.find('\n', line) + 1)
    {
        if (text.compare(line, input.size(), input) == 0)
            text.replace(line, input.size(), holding);
        else if (text.compare(line, holding.size(), holding) == 0)
            text.replace(line, holding.size(), input);
    }
    return text;
}

/// Measures the program on "plant.json", "other.json" of another plant, "map.csv" and "moved.csv".
Measurement running(const std::string& arguments, int exitCode)
{
    return [=](benchmark::State& state)
    {
        const ScratchFolder folder;
        folder.input("plant.json", fullDatabaseJson());
        folder.input("other.json", fullDatabaseJson(1));
        folder.input("map.csv", mapOfObjects());
        folder.input("moved.csv", mapOfMovedObjects());
        measure(
            state, [] {},
            [&]
            {
                if (run(folder, arguments) != exitCode)
                    state.SkipWithError("the program has another exit code");
            });
    };
}

} // namespace

void addToolBenchmarks(ResultTable& table)
{
    constexpr double goal = 150;
    const auto add = [&](const std::string& work, const std::string& arguments, int exitCode)
    {
        const Measurement measurement = running(arguments, exitCode);
        table.add({.work = work, .measurement = measurement, .milliseconds = goal});
    };
    add("tolvane-map check, 65,536 objects and tags", "check -d plant.json -m map.csv", 0);
    add("tolvane-map check, no name known", "check -d other.json -m map.csv", 1);
    add("tolvane-map diff, the same 65,536 objects", "diff map.csv map.csv", 0);
    add("tolvane-map diff, 32,768 objects moved", "diff map.csv moved.csv", 1);
}
