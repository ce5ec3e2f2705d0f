#pragma once

#include <csignal>

/// Keeps the signal by which the system tells of a file-size limit from ending the program: within its scope, a write
/// beyond the limit only fails. It holds back the signals of the calling thread only, so several threads may write at
/// the same time.
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
