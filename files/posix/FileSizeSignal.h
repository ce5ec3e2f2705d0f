#pragma once

#include <csignal>

/// Keeps the signal by which the system tells of a file-size limit from ending the program: within its scope, a write
/// beyond the limit only fails. It holds the calling thread's signals alone, so that threads may write at once.
class FileSizeSignalHeld
{
public:
    FileSizeSignalHeld();
    ~FileSizeSignalHeld();
    FileSizeSignalHeld(const FileSizeSignalHeld&) = delete;
    FileSizeSignalHeld& operator=(const FileSizeSignalHeld&) = delete;

private:
    sigset_t signal{};
    sigset_t oldMask{};
};
