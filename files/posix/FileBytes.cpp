#include "files/posix/FileBytes.h"

#include <array>
#include <cerrno>

std::optional<std::string> readAll(FileSystemCalls& calls, int descriptor)
{
    std::string bytes;
    std::array<char, 65536> block;
    for (;;)
    {
        const ssize_t length = calls.pread(descriptor, block.data(), block.size(), static_cast<off_t>(bytes.size()));
        if (length == 0)
            return bytes;
        if (length > 0)
            bytes.append(block.data(), static_cast<std::size_t>(length));
        else if (errno != EINTR)
            return std::nullopt;
    }
}

bool writeAll(FileSystemCalls& calls, int descriptor, std::string_view bytes)
{
    std::size_t done = 0;
    while (done < bytes.size())
    {
        const ssize_t length =
            calls.pwrite(descriptor, bytes.data() + done, bytes.size() - done, static_cast<off_t>(done));
        if (length > 0)
            done += static_cast<std::size_t>(length);
        else if (length == 0 || errno != EINTR)
            return false;
    }
    return true;
}
