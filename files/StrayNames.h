#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

/// A file being written has a name of its own for a moment before it takes that of its target. The end of the program
/// in that moment leaves a stray, which the next writing to the same target clears away.

/// A name beside `target` for a file that is to take its place: ".saving-", sixteen hexadecimal digits that stand for
/// the target's name, "-", and sixteen for `number`. Short, whatever the length of the target's own name.
std::filesystem::path strayName(const std::filesystem::path& target, std::uint64_t number);

/// The files in the target's folder that have a name like this for this target; none when the folder cannot be listed.
std::vector<std::filesystem::path> straysOf(const std::filesystem::path& target);

/// The folder that a file lies in: the working directory when its path names none.
std::filesystem::path folderOf(const std::filesystem::path& file);
