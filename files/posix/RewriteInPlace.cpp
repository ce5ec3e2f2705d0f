#include "files/posix/RewriteInPlace.h"

#include "files/posix/FileBytes.h"

#include <cerrno>
#include <tuple>

namespace
{

/// Asks the disk for the room by which a file grows; a file system that cannot promise it is taken at its best.
bool reserveGrowth(FileSystemCalls& calls, int descriptor, off_t oldSize, off_t newSize)
{
    if (newSize <= oldSize)
        return true;
    const int error = calls.posixFallocate(descriptor, oldSize, newSize - oldSize);
    return error == 0 || error == EOPNOTSUPP || error == EINVAL;
}

/// Writes without asking for room and cuts off what the file held behind.
bool overwrite(FileSystemCalls& calls, int descriptor, std::string_view bytes)
{
    return writeAll(calls, descriptor, bytes) && calls.ftruncate(descriptor, static_cast<off_t>(bytes.size())) == 0 &&
           calls.fsync(descriptor) == 0;
}

} // namespace

bool rewriteInPlace(FileSystemCalls& calls, int descriptor, std::string_view bytes)
{
    struct stat old = {};
    if (calls.fstat(descriptor, &old) != 0)
        return false;
    const std::optional<std::string> oldBytes = readAll(calls, descriptor);
    const bool mayBeRead = oldBytes || errno == EBADF;
    if (!mayBeRead)
        return false;
    if (reserveGrowth(calls, descriptor, old.st_size, static_cast<off_t>(bytes.size())) &&
        overwrite(calls, descriptor, bytes))
        return true;
    if (oldBytes)
        overwrite(calls, descriptor, *oldBytes);
    else
        std::ignore = calls.ftruncate(descriptor, old.st_size); // gives back at least the room that was reserved
    return false;
}
