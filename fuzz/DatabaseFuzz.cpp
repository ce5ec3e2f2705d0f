// Any bytes as a tag database.

#include "fuzz/MemoryFile.h"
#include "fuzz/Require.h"
#include "source/TagDatabaseLoader.h"
#include "source/TagFilter.h"

namespace
{

void requireSoundDatabase(const TagDatabase& database)
{
    require(database.tags.count() >= 0 && database.tags.count() <= tagCapacity, "the table's size bounds its count");
    int node = 0;
    for (const StructureNode& each : database.structure)
        require(each.parent < node++, "a node comes after its parent");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const MemoryFile file({bytes, size});
    TagDatabase database;
    const LoadResult result = loadTagDatabase(file.path(), database);
    require(result != LoadResult::FileNotFound, "a file that is there is found");
    requireSoundDatabase(database);

    std::optional<TagSearchIndex> index;
    const auto all = filterTags(database.tags, index, {});
    require(all.size() == static_cast<std::size_t>(database.tags.count()), "an empty filter lets every tag pass");
    return 0;
}
