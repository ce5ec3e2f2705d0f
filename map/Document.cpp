#include "map/Document.h"

#include "files/OldBytes.h"
#include "files/ReadFile.h"
#include "files/RescueCopy.h"
#include "map/Validation.h"

#include <new>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace
{

bool keepInFolder(const std::filesystem::path& file, const std::filesystem::path& folder)
try
{
    const std::optional<std::string> bytes = readFile(file);
    std::filesystem::path name = file.filename();
    return bytes && RescueCopy(folder).write(name += '~', *bytes);
}
catch (const std::bad_alloc&)
{
    return false;
}

} // namespace

Document::Document(std::filesystem::path databaseFile, std::filesystem::path definitionFile, long swapFlags)
    : defaultByteOrder(DefaultByteOrder::fromSwapFlags(swapFlags)), definitionPath(std::move(definitionFile)),
      databasePath(std::move(databaseFile))
{
}

LoadResult Document::loadDatabase()
{
    return loadTagDatabase(databasePath, database);
}

void Document::loadDefinition()
{
    onDisk = loadDefinitionFile(definitionPath, map, database.tags);
    if (isLoaded(onDisk))
        validate();
    // Also for a map without a file: only what the user changes from here on is worth a question on leaving.
    try
    {
        map.takeSnapshot();
    }
    catch (const std::bad_alloc&)
    {
        // The map fits into the memory, but not what tells whether it was changed. Like a file that does not fit.
        onDisk = DefinitionLoad::Unreadable;
        map.initialise();
    }
}

void Document::validate()
{
    validateMap(map, database.tags);
}

bool Document::saveDefinition()
{
    settled = keepWhatIsLost() && saveDefinitionFile(definitionPath, map);
    // Old bytes are kept once: from here on the file holds what a save made of it.
    if (settled)
        onDisk = DefinitionLoad::Whole;
    return settled;
}

bool Document::keepWhatIsLost() const
{
    std::error_code ignored;
    const bool holdsMore = onDisk == DefinitionLoad::Partial || onDisk == DefinitionLoad::Unreadable;
    if (!holdsMore || !std::filesystem::is_regular_file(definitionPath, ignored))
        return true;
    // The day's work is worth more than the lines that did not get into the map, so these do not hold it up.
    return keepOldBytes(definitionPath) || keepInFolder(definitionPath, spareFolder) ||
           onDisk == DefinitionLoad::Partial;
}
