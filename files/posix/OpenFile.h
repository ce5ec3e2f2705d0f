#pragma once

#include "files/posix/FileSystemCalls.h"

#include <fcntl.h>
#include <filesystem>

/// An open file, closed at the end of its scope.
class OpenFile
{
public:
    /// @param flags  as the system's open takes them; never handed on to programs that are started
    /// @param mode   permissions of a file that is made by opening it
    OpenFile(FileSystemCalls& systemCalls, const std::filesystem::path& path, int flags, mode_t mode = 0)
        : calls(systemCalls), descriptor(calls.open(path.c_str(), flags | O_CLOEXEC, mode))
    {
    }
    ~OpenFile()
    {
        if (isOpen())
            calls.close(descriptor);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    /// False when the file could not be opened; `errno` says why until the next call to the system.
    bool isOpen() const { return descriptor >= 0; }

    /// The descriptor, negative when the file could not be opened.
    int get() const { return descriptor; }

private:
    FileSystemCalls& calls;
    int descriptor;
};
