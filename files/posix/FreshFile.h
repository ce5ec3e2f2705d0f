#pragma once

#include "files/posix/OpenFile.h"

#include <filesystem>

/// A file in the making in the folder of its target. At the end of its scope it is gone, unless it has taken its name.
class FreshFile
{
public:
    enum class Kind
    {
        Unnamed, ///< vanishes by itself when the program ends early; not every file system has such files
        Named    ///< has a stray's name from the start
    };

    /// Makes an empty file, open for writing.
    /// @param target  the name that the file is to take; not a symbolic link
    FreshFile(FileSystemCalls& systemCalls, std::filesystem::path target, Kind kind, mode_t mode);
    ~FreshFile();
    FreshFile(const FreshFile&) = delete;
    FreshFile& operator=(const FreshFile&) = delete;

    /// False when the folder does not take such a file.
    bool isOpen() const { return file.isOpen(); }
    int descriptor() const { return file.get(); }

    /// Gives the file the target's name in one step, in place of a file that has it.
    /// @return false when the system refuses, with a file of that name as it was
    bool takeName();

private:
    bool linkAs(const std::filesystem::path& path);

    FileSystemCalls& calls;
    const std::filesystem::path finalName;
    const std::filesystem::path ownName;
    OpenFile file;
    bool hasOwnName = false;
};
