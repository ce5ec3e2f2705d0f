#include "files/posix/FileBytes.h"

#include <array>
#include <cerrno>

// Both say where in the file each piece belongs, so neither depends on where an earlier read or write has stopped: the
// same descriptor is read, written and, after a failure, written again.

std::optional<std::string> readAll(FileSystemCalls& calls, int descriptor)
{
    std::string bytes;
    std::array<char, 65536> block;
    for (;;)
    {
        const ssize_t length = calls.pread(descriptor, block.data(), block.size(), static_cast<off_t>(bytes.size()));
        // The end is where nothing more comes. The size that the system tells may change while the file is read.
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
        // A signal may come before the first byte of a piece, which is no failure. No bytes and no error would go on
        // for ever.
        if (length > 0)
            done += static_cast<std::size_t>(length);
        else if (length == 0 || errno != EINTR)
            return false;
    }
    return true;
}
