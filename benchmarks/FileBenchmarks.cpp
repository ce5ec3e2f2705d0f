// Reading, judging and writing the program's files at their largest.

#include "benchmarks/Benchmarks.h"
#include "benchmarks/DrivenFrame.h"
#include "benchmarks/FullSize.h"
#include "benchmarks/Measure.h"
#include "map/DefinitionFile.h"
#include "map/MapExport.h"
#include "source/TagFilter.h"

#include <fcntl.h>
#include <unistd.h>

namespace
{

/// Loads as the program does, up to the index for searching. Texts stay for the life of a process, so every round loads
/// a plant whose texts are as new as they are at a start.
void loadDatabase(benchmark::State& state)
{
    static int series = 0;
    const ScratchFolder folder;
    std::filesystem::path path;
    int tagCount = 0;
    measure(
        state, [&] { path = folder.input("plant.json", fullDatabaseJson(++series)); },
        [&]
        {
            TagDatabase database;
            benchmark::DoNotOptimize(loadTagDatabase(path, database));
            const TagSearchIndex index(database.tags);
            benchmark::DoNotOptimize(&index);
            tagCount = database.tags.count();
        });
    if (tagCount != tagCapacity)
        state.SkipWithError("the database is not loaded");
}

void loadMap(benchmark::State& state)
{
    LoadedPlant plant(mapOfObjects());
    RegisterMap& map = plant.document.map;
    measure(
        state, [&] { map.initialise(); },
        [&] { loadDefinitionFile(plant.document.definitionPath, map, plant.document.database.tags); });
    if (map.currentSlots()[0].tagname.view().empty())
        state.SkipWithError("the map is not loaded");
}

void validate(benchmark::State& state)
{
    LoadedPlant plant(mapOfSingleRegisters());
    measure(
        state, [] {}, [&] { plant.document.validate(); });
    if (plant.document.map.currentSlots()[0].tagIndex < 0)
        state.SkipWithError("a tag of the plant is not found");
}

/// Writes a file in the plainest way and waits until the disk has it.
bool writeAndSync(const std::filesystem::path& path, const std::string& bytes)
{
    constexpr mode_t everybody = 0666;
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, everybody);
    const bool written = ::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
    const bool synced = ::fsync(file) == 0;
    ::close(file);
    return written && synced;
}

/// Measures writing a file.
/// @param write  told the path and the map; says whether it is written
Measurement writing(bool (*write)(const std::filesystem::path&, const RegisterMap&))
{
    return [=](benchmark::State& state)
    {
        const LoadedPlant plant(mapOfObjects());
        bool written = true;
        measure(
            state, [] {}, [&] { written = write(plant.folder.file("written.csv"), plant.document.map) && written; });
        if (!written)
            state.SkipWithError("the file is not written");
    };
}

void writeTheSame(benchmark::State& state)
{
    const LoadedPlant plant(mapOfObjects());
    const std::string text = definitionText(plant.document.map);
    measure(
        state, [] {}, [&] { writeAndSync(plant.folder.file("same"), text); });
}

} // namespace

void addFileBenchmarks(ResultTable& table)
{
    table.add({.work = "save it",
               .measurement = writing(saveDefinitionFile),
               .yardstick = "writing and syncing the same bytes",
               .yardstickMeasurement = writeTheSame,
               .milliseconds = 50});
    table.add({.work = "export it as CSV",
               .measurement = writing([](const auto& path, const RegisterMap& map) { return exportMap(map, path); })});
    table.add({.work = "validateMap, 262,144 objects", .measurement = validate});
    table.add({.work = "load a map of 65,536 objects", .measurement = loadMap});
    table.add({.work = "load a 65,536-tag database", .measurement = loadDatabase, .rounds = 3});
}
