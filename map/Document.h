#pragma once

#include "map/DefaultByteOrder.h"
#include "map/DefinitionFile.h"
#include "map/RegisterMap.h"
#include "source/TagDatabase.h"
#include "source/TagDatabaseLoader.h"

#include <filesystem>

/// What the program works on: the register map, the tag database that it publishes from, and the files they come from.
///
/// It knows no window. Whoever opens it keeps it until every window that shows it is gone.
class Document
{
public:
    /// An empty map over an empty database; nothing is read yet.
    /// @param databaseFile    tag database, a JSON file; may be empty or name no file
    /// @param definitionFile  map definition file; may be empty or name no file
    /// @param swapFlags       default byte order of float tags: bit 1 bytes, bit 2 words, bit 3 longs
    Document(std::filesystem::path databaseFile, std::filesystem::path definitionFile, long swapFlags);

    /// Reads the tag database; a failure leaves what was read before it.
    LoadResult loadDatabase();

    /// Reads the definition file over the map, validates it, and takes the state for which there is nothing to save.
    /// A file that is missing or cannot be read leaves the map as it is. The database has to be loaded before: it sizes
    /// objects that the file names without a length.
    void loadDefinition();

    /// Judges every register by the tag database again.
    void validate();

    /// Writes the definition file.
    ///
    /// When the file at the start held anything that is not written back (it could not be read, a line was dropped, a
    /// text cut off), the first save keeps its bytes beside it, under its name and "~", or else in `spareFolder`. A
    /// file that could not be read at all is written over only when one of the two has worked: the map holds nothing of
    /// it. What others put into the file while it was open is not looked at.
    /// @return false when it could not be written; the file is then what it was, and the changes are still unsaved
    bool saveDefinition();

    /// Gives up the changes: the user was asked and does not want them.
    void discardChanges() { settled = true; }

    /// True while the map holds changes that have neither been written nor been given up.
    bool hasUnsavedChanges() const { return !settled && map.isModified(); }

    RegisterMap map;
    TagDatabase database;
    DefaultByteOrder defaultByteOrder;    ///< of objects made from tags; lasts for this run
    std::filesystem::path definitionPath; ///< empty when there is no file to save to yet
    std::filesystem::path spareFolder;    ///< takes old bytes that the file's own folder does not; empty for none

private:
    /// Keeps the file's bytes where a save would lose some of them.
    /// @return false when the file must stay as it is: they could not be kept, and the map holds nothing of them
    bool keepWhatIsLost() const;

    std::filesystem::path databasePath;
    DefinitionLoad onDisk = DefinitionLoad::NoFile; ///< how the map holds what the file holds
    bool settled = false;
};
