#pragma once

#include <filesystem>
#include <string>

/// A path as the command line gives it, in the form that files are opened with.
/// @param argument  UTF-8; any bytes where the system's paths are bytes, and then these are the path
inline std::filesystem::path toPath(const std::string& argument)
{
    // From a plain text the path would be taken for one in the code page of the user where paths are no bytes.
    return std::u8string(argument.begin(), argument.end());
}
