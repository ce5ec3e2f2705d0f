// Reading and writing the program's files at their largest.

#include "benchmarks/Benchmarks.h"
#include "benchmarks/FullSize.h"
#include "benchmarks/Measure.h"
#include "benchmarks/ScratchFiles.h"
#include "map/DefinitionFile.h"
#include "map/MapExport.h"
#include "source/TagDatabaseLoader.h"
#include "source/TagFilter.h"

#include <rapidjson/document.h>

namespace
{

/// The plant of a number that no round before has had: its texts are as new to the program as at its start.
std::string unseenDatabase()
{
    static int seriesUsed = 0;
    return fullDatabaseJson(++seriesUsed);
}

void loadDatabase(benchmark::State& state)
{
    const ScratchFolder folder;
    const auto path = folder.file("plant.json");
    int tagCount = 0;
    measureApart(
        state, [&] { writeInput(path, unseenDatabase()); },
        [&]
        {
            TagDatabase database;
            benchmark::DoNotOptimize(loadTagDatabase(path, database));
            const TagSearchIndex index(database.tags);
            benchmark::DoNotOptimize(&index);
            tagCount = database.tags.count();
        },
        [&] { return tagCount == tagCapacity; });
}

void parseJson(benchmark::State& state)
{
    const std::string bytes = fullDatabaseJson();
    measure(state,
            [&]
            {
                rapidjson::Document document;
                document.Parse<rapidjson::kParseIterativeFlag>(bytes.data(), bytes.size());
                benchmark::DoNotOptimize(document.HasParseError());
            });
}

/// Where the bytes of a file are when it is read.
enum class FileIn
{
    Memory, ///< read before
    Disk
};

void prepareReading(const std::filesystem::path& path, FileIn place)
{
    if (place == FileIn::Disk)
        forgetContents(path);
}

Measurement loadingMap(FileIn place)
{
    return [=](benchmark::State& state)
    {
        const ScratchFolder folder;
        const auto path = folder.file("map.csv");
        const TagTable tags = fullTags();
        RegisterMap map;
        fillWithObjects(map);
        writeInput(path, definitionText(map));
        measure(
            state,
            [&]
            {
                map.initialise();
                prepareReading(path, place);
            },
            [&] { benchmark::DoNotOptimize(loadDefinitionFile(path, map, tags)); });
        if (!map.currentSlots()[lastAddress].used)
            state.SkipWithError("the map is not loaded");
    };
}

Measurement readingMapFile(FileIn place)
{
    return [=](benchmark::State& state)
    {
        const ScratchFolder folder;
        const auto path = folder.file("map.csv");
        RegisterMap map;
        fillWithObjects(map);
        writeInput(path, definitionText(map));
        measure(
            state, [&] { prepareReading(path, place); }, [&] { benchmark::DoNotOptimize(readPlainly(path)); });
    };
}

using WriteFile = bool (*)(const std::filesystem::path&, const RegisterMap&);
using MakeText = std::string (*)(const RegisterMap&);

bool exportTo(const std::filesystem::path& path, const RegisterMap& map)
{
    return exportMap(map, path);
}

/// @param name  of the file to write; tells the format of an export
Measurement writing(WriteFile write, const char* name)
{
    return [=](benchmark::State& state)
    {
        const ScratchFolder folder;
        const auto path = folder.file(name);
        const TagTable tags = fullTags();
        RegisterMap map;
        fillWithObjects(map);
        measure(state,
                [&]
                {
                    if (!write(path, map))
                        state.SkipWithError("the file is not written");
                });
    };
}

Measurement writingTheSame(MakeText makeText)
{
    return [=](benchmark::State& state)
    {
        const ScratchFolder folder;
        RegisterMap map;
        fillWithObjects(map);
        const std::string text = makeText(map);
        measure(state, [&] { writeAndSync(folder.file("same"), text); });
    };
}

} // namespace

void addFileBenchmarks(RatioTable& table)
{
    const std::string sameBytes = "write and sync the same bytes";

    table.add({.work = "load a 65,536-tag database", .yardstick = "the JSON parser alone", .ratio = 3}, 3, loadDatabase,
              parseJson);
    table.add({.work = "load a map of 65,536 objects, from disk", .yardstick = "read the same bytes", .ratio = 6}, 5,
              loadingMap(FileIn::Disk), readingMapFile(FileIn::Disk));
    table.add({.work = "load it when read before", .yardstick = "read the same bytes"}, 5, loadingMap(FileIn::Memory),
              readingMapFile(FileIn::Memory));
    table.add({.work = "save it", .yardstick = sameBytes, .ratio = 4}, 5, writing(saveDefinitionFile, "map.csv"),
              writingTheSame(definitionText));
    table.add({.work = "export it as CSV", .yardstick = sameBytes, .ratio = 4}, 5, writing(exportTo, "map.csv"),
              writingTheSame(exportCsv));
    table.add({.work = "export it as text", .yardstick = sameBytes, .ratio = 4}, 5, writing(exportTo, "map.txt"),
              writingTheSame(exportTextReport));
}
