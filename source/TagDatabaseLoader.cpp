#include "source/TagDatabaseLoader.h"

#include "files/ReadFile.h"
#include "source/TagDatabaseBuilder.h"
#include "text/Decode.h"

#include <exception>
#include <utility>

// From the file to the database:
//
//   readFile     any bytes, or "Input file not found"
//   decodeText   UTF-8, whatever the encoding was
//   readTolerantJson, which tells a TagDatabaseBuilder what it finds piece by piece, or "Bad JSON format"
//   takeOver     what is there, up to the first thing that is missing
//
// UTF-8 is handed on from step to step, not copied: a file may have 200 MB. Only another encoding, and mending what is
// not strict JSON, make a second text.

namespace
{

/// Takes over what was built, in the order in which failures have to be noticed: the file may have its members in any
/// order, but what stays after a failure is as if groups, structure and tags were read one after the other.
LoadResult takeOver(TagDatabaseBuilder& built, TagDatabase& database)
{
    // The groups come first and have no failure of their own: a file without them has an empty list.
    database.groups = std::move(built.database.groups);
    if (!built.structure.isPresent())
        return LoadResult::StructureMissing;
    if (!built.structure.hasLable())
        return LoadResult::LableMissing;
    database.structure = std::move(built.database.structure);
    if (!built.tags.isPresent())
        return LoadResult::DatabaseMissing;
    built.tags.finish();
    database.tags = std::move(built.database.tags);
    return LoadResult::Loaded;
}

} // namespace

LoadResult readTagDatabase(std::string bytes, TagDatabase& database)
try
{
    // The database is built aside, so that a file that is not JSON costs nothing of what was there.
    TagDatabaseBuilder built;
    if (!readTolerantJson(decodeText(std::move(bytes)), built))
        return LoadResult::BadJson;
    return takeOver(built, database);
}
catch (const std::exception&) // a file too large for the memory
{
    return LoadResult::BadJson;
}

LoadResult loadTagDatabase(const std::filesystem::path& path, TagDatabase& database)
{
    auto bytes = readFile(path);
    return bytes ? readTagDatabase(std::move(*bytes), database) : LoadResult::FileNotFound;
}

std::string_view loadMessage(LoadResult result)
{
    // The line ends belong to the texts, and "lable" is how the files spell that member.
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
