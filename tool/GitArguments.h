#pragma once

#include <optional>
#include <string>
#include <vector>

/// What git asks a diff driver to compare.
struct GitComparison
{
    std::string name;      ///< the file's path in the repository
    std::string before;    ///< where its old contents are; /dev/null when it is new
    std::string after;     ///< where its new contents are; /dev/null when it is gone
    bool unmerged = false; ///< a conflict: there is nothing to compare yet
};

/// Reads the arguments of a diff driver: path, old file, hash and mode, new file, hash and mode, and for a renamed file
/// the new path and what git says about it; or the path alone of a file in conflict.
/// @return nothing for any other number of arguments
std::optional<GitComparison> gitComparison(const std::vector<std::string>& arguments);
