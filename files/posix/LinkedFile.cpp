#include "files/posix/LinkedFile.h"

#include <array>
#include <cerrno>
#include <climits>
#include <string_view>

namespace fs = std::filesystem;

std::optional<fs::path> linkedFile(FileSystemCalls& calls, fs::path path)
{
    constexpr int longestChain = 40; // as many as the system itself follows
    for (int links = 0; links < longestChain; ++links)
    {
        std::array<char, PATH_MAX> target;
        const ssize_t length = calls.readlink(path.c_str(), target.data(), target.size());
        if (length < 0)
            return errno == EINVAL || errno == ENOENT ? std::optional(path) : std::nullopt;
        path = path.parent_path() / std::string_view(target.data(), static_cast<std::size_t>(length));
    }
    return std::nullopt;
}
