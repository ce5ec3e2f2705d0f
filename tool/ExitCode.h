#pragma once

/// What the program tells the script that runs it. Each word uses the ones that it needs.
enum class ExitCode
{
    Success = 0,      ///< nothing found, no difference, written
    Found = 1,        ///< errors, or differences
    Failed = 2,       ///< a file cannot be read or written, or the command line is wrong
    LockedChanged = 3 ///< a locked object changed
};
