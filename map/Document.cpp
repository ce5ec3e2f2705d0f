#include "map/Document.h"

#include "files/OldBytes.h"
#include "map/DefinitionFile.h"
#include "map/Validation.h"

#include <system_error>
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
    const DefinitionLoad load = loadDefinitionFile(definitionPath, map, database.tags);
    fileHoldsMore = load == DefinitionLoad::Partial || load == DefinitionLoad::Unreadable;
    if (isLoaded(load))
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
    settled = keepWhatIsLost() && saveDefinitionFile(definitionPath, map);
    return settled;
}

bool Document::keepWhatIsLost()
{
    std::error_code ignored;
    if (fileHoldsMore && std::filesystem::is_regular_file(definitionPath, ignored) && !keepOldBytes(definitionPath))
        return false;
    // Once: from here on the file holds what a save made of it.
    fileHoldsMore = false;
    return true;
}
