#include "files/posix/LinkedFile.h"

#include <array>
#include <cerrno>
#include <climits>
#include <string_view>

namespace fs = std::filesystem;

// Renaming onto a symbolic link would put the file in the link's place, and whoever keeps the real file elsewhere would
// find it unchanged there. So the name at the end of the links is looked for, and the fresh file made beside it.

std::optional<fs::path> linkedFile(FileSystemCalls& calls, fs::path path)
{
    constexpr int longestChain = 40; // as many as the system itself follows
    for (int links = 0; links <= longestChain; ++links)
    {
        std::array<char, PATH_MAX> target;
        const ssize_t length = calls.readlink(path.c_str(), target.data(), target.size());
        // EINVAL says that it is not a link: the end. ENOENT too: a link may lead to where a save is to make the file.
        if (length < 0)
            return errno == EINVAL || errno == ENOENT ? std::optional(path) : std::nullopt;
        // A relative link counts from the folder that it lies in; an absolute one takes the place of the whole path.
        path = path.parent_path() / std::string_view(target.data(), static_cast<std::size_t>(length));
    }
    return std::nullopt;
}
