#pragma once

#include <filesystem>

/// Keeps a copy of a file's bytes beside it, for a save that will not write all of them back.
///
/// The copy has the file's name with "~" after it and lies beside the file that `path` leads to, symbolic links
/// followed. It is made as safely as a save: an older copy of that name stays until the new one is on the disk, and is
/// then replaced; a link of that name is replaced too, never followed. It has the file's permissions, or is for its
/// owner alone where these cannot be given. The file itself is not touched.
/// @return false when there is no copy of these bytes: no such file, not a regular one, unreadable, no room, a name too
///         long, a folder that takes none
bool keepOldBytes(const std::filesystem::path& path);
