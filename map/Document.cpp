#include "map/Document.h"

#include "map/DefinitionFile.h"
#include "map/Validation.h"

#include <utility>

Document::Document(std::filesystem::path databaseFile, std::filesystem::path definitionFile, long swapFlags)
    : defaultByteOrder(DefaultByteOrder::fromSwapFlags(swapFlags)), definitionPath(std::move(definitionFile)),
      databasePath(std::move(databaseFile))
{
    map.initialise();
}

LoadResult Document::loadDatabase()
{
    return loadTagDatabase(databasePath, database);
}

void Document::loadDefinition()
{
    if (loadDefinitionFile(definitionPath, map, database.tags))
        validate();
    // Also for a map without a file: only what the user changes from here on is worth a question on leaving.
    map.takeSnapshot();
}

void Document::validate()
{
    validateMap(map, database.tags);
}

bool Document::saveDefinition()
{
    settled = saveDefinitionFile(definitionPath, map);
    return settled;
}
