#include "source/TagDatabaseLoader.h"

#include "files/ReadFile.h"
#include "source/TagDatabaseBuilder.h"
#include "text/Decode.h"

#include <exception>
#include <utility>

namespace
{

/// Takes over what was built, in the order in which failures have to be noticed.
LoadResult takeOver(TagDatabaseBuilder& built, TagDatabase& database)
{
    database.groups = std::move(built.database.groups);
    if (!built.structure.isPresent())
        return LoadResult::StructureMissing;
    if (!built.structure.hasLable())
        return LoadResult::LableMissing;
    database.structure = std::move(built.database.structure);
    if (!built.tags.isPresent())
        return LoadResult::DatabaseMissing;
    database.tags = std::move(built.database.tags);
    return LoadResult::Loaded;
}

} // namespace

LoadResult loadTagDatabase(const std::filesystem::path& path, TagDatabase& database)
{
    auto bytes = readFile(path);
    if (!bytes)
        return LoadResult::FileNotFound;
    try
    {
        TagDatabaseBuilder built;
        if (!readTolerantJson(decodeText(std::move(*bytes)), built))
            return LoadResult::BadJson;
        return takeOver(built, database);
    }
    catch (const std::exception&) // a file too large for the memory
    {
        return LoadResult::BadJson;
    }
}

std::string_view loadMessage(LoadResult result)
{
    switch (result)
    {
    case LoadResult::Loaded:
        return "";
    case LoadResult::FileNotFound:
        return "Input file not found\n";
    case LoadResult::BadJson:
        return "Bad JSON format\n";
    case LoadResult::StructureMissing:
        return "[structure] key missing from JSON file\n";
    case LoadResult::LableMissing:
        return "[lable] key missing from JSON file\n";
    case LoadResult::DatabaseMissing:
        return "[database] key missing from JSON file\n";
    }
    return "";
}
