#pragma once

#include "files/posix/AccessRights.h"
#include "files/posix/FileSystemCalls.h"

#include <filesystem>
#include <string_view>

/// How putting a fresh file in the old one's place ended.
enum class Exchange
{
    Done,
    Refused, ///< the folder does not allow it, or the fresh file cannot be made like the old one
    Failed   ///< the bytes did not get to the disk
};

/// What becomes of a fresh file that cannot be given the access of the one that it is made after.
enum class Access
{
    MustBeKept,    ///< the exchange is refused
    AsFarAsAllowed ///< only its owner may open it
};

/// Writes `bytes` into a fresh file beside `target`, flushes it to the disk and lets it take the name in one step.
/// @param target  not a symbolic link
/// @param old     the file whose access the fresh one gets, most often the one to be replaced; null gives it that of
///                any new file
/// @return anything but Done: the target is as it was and no other file was left
Exchange exchangeFile(FileSystemCalls& calls, const std::filesystem::path& target, const OldFile* old,
                      std::string_view bytes, Access access = Access::MustBeKept);
