// Reading, judging and writing the program's files at their largest.

#include "benchmarks/Benchmarks.h"
#include "benchmarks/FullSize.h"
#include "benchmarks/Measure.h"
#include "benchmarks/ScratchFiles.h"
#include "map/DefinitionFile.h"
#include "map/Document.h"
#include "map/MapExport.h"
#include "source/TagFilter.h"

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

/// The plant's files and what is loaded from them.
class LoadedPlant
{
public:
    /// @param map  text of the definition file
    explicit LoadedPlant(const std::string& map)
        : definition(folder.input("map.csv", map)),
          document(folder.input("plant.json", fullDatabaseJson()), definition, 0)
    {
        document.loadDatabase();
        document.loadDefinition();
    }

    ScratchFolder folder;
    std::filesystem::path definition;
    Document document;
};

void loadMap(benchmark::State& state)
{
    LoadedPlant plant(mapOfObjects());
    RegisterMap& map = plant.document.map;
    measure(
        state,
        [&]
        {
            map.initialise();
            forgetContents(plant.definition);
        },
        [&] { benchmark::DoNotOptimize(loadDefinitionFile(plant.definition, map, plant.document.database.tags)); });
    if (map.currentSlots()[0].tagname.view().empty())
        state.SkipWithError("the map is not loaded");
}

Measurement validating(std::string (*mapText)())
{
    return [=](benchmark::State& state)
    {
        LoadedPlant plant(mapText());
        measure(state, [&] { plant.document.validate(); });
        if (plant.document.map.currentSlots()[0].tagIndex < 0)
            state.SkipWithError("a tag of the plant is not found");
    };
}

using WriteFile = bool (*)(const std::filesystem::path&, const RegisterMap&);
bool exportTo(const std::filesystem::path& path, const RegisterMap& map)
{
    return exportMap(map, path);
}

/// @param name  of the file to write; tells the format of an export
Measurement writing(WriteFile write, const char* name)
{
    return [=](benchmark::State& state)
    {
        const LoadedPlant plant(mapOfObjects());
        measure(state,
                [&]
                {
                    if (!write(plant.folder.file(name), plant.document.map))
                        state.SkipWithError("the file is not written");
                });
    };
}

void writeTheSame(benchmark::State& state)
{
    const LoadedPlant plant(mapOfObjects());
    const std::string text = definitionText(plant.document.map);
    measure(state, [&] { writeAndSync(plant.folder.file("same"), text); });
}

} // namespace

void addFileBenchmarks(ResultTable& table)
{
    table.add({.work = "save it",
               .measurement = writing(saveDefinitionFile, "map.csv"),
               .yardstick = "writing and syncing the same bytes",
               .yardstickMeasurement = writeTheSame,
               .milliseconds = 50});
    table.add({.work = "export it as CSV", .measurement = writing(exportTo, "map.csv")});
    table.add({.work = "export it as text", .measurement = writing(exportTo, "map.txt")});
    table.add({.work = "validateMap, 65,536 objects", .measurement = validating(mapOfObjects)});
    table.add({.work = "validateMap, 262,144 objects", .measurement = validating(mapOfSingleRegisters)});
    table.add({.work = "load a map of 65,536 objects, from disk", .measurement = loadMap});
    table.add({.work = "load a 65,536-tag database", .measurement = loadDatabase, .rounds = 3});
}
