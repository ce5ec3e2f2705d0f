#pragma once

#include <filesystem>
#include <string_view>

/// Puts `bytes` into a file in such a way that a failure or a power cut leaves the old contents or the new, never a
/// mixture.
///
/// The bytes go into a fresh file beside the old one, are flushed to the disk, and take the old file's place in one
/// step, with its permissions, access list, attributes and as far as allowed its owner. Symbolic links stay links: the
/// file they lead to is written, and made when it is missing. Where the folder takes no fresh file or refuses the
/// exchange, where the fresh file cannot be made like the old one, and where the file has more names than one, it is
/// rewritten in place once the disk has promised the room, and put back if the disk fails even so. Files that
/// earlier writing to this name has left in the folder, because its program was ended, are cleared away.
/// @param path   a regular file, or a name in an existing folder; relative to the working directory when not absolute
/// @param bytes  the whole new contents
/// @return false when the file keeps its old contents (no such folder, not a regular file, write-protected, disk full)
///         or was taken away while it was written. Only the end of the program or of the disk while a file is
///         rewritten in place can leave it damaged. POSIX systems then say in `errno` why, if a call of theirs failed
bool writeFileSafely(const std::filesystem::path& path, std::string_view bytes);
