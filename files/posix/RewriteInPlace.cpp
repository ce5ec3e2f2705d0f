#include "files/posix/RewriteInPlace.h"

#include "files/posix/FileBytes.h"

#include <cerrno>
#include <tuple>

// The way for files that no fresh one can replace. What a power cut leaves after each step:
//
//   the old bytes are read        the old contents
//   room for growth is reserved   the old contents, with zero bytes after them
//   the new bytes are written     any mixture, until they are flushed
//   the file is cut and flushed   the new contents
//
// A failure that the program survives leads back to the old contents: they are in memory.

namespace
{

/// Asks the disk for the room by which a file grows; a file system that cannot promise it is taken at its best.
bool reserveGrowth(FileSystemCalls& calls, int descriptor, off_t oldSize, off_t newSize)
{
    if (newSize <= oldSize)
        return true;
    const int error = calls.posixFallocate(descriptor, oldSize, newSize - oldSize);
    if (error == 0 || error == EOPNOTSUPP || error == EINVAL)
        return true;
    errno = error; // as other calls tell it
    return false;
}

/// Writes without asking for room and cuts off what the file held after these bytes.
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
    // EBADF says that the file was opened for writing only. Any other failure is one of the disk, and a disk that
    // cannot give the old bytes is not to be trusted with the new ones.
    const bool mayBeRead = oldBytes || errno == EBADF;
    if (!mayBeRead)
        return false;
    if (reserveGrowth(calls, descriptor, old.st_size, static_cast<off_t>(bytes.size())) &&
        overwrite(calls, descriptor, bytes))
        return true;
    // Whether this succeeds is not asked: there is nothing else left to try, and the save has failed either way.
    if (oldBytes)
        overwrite(calls, descriptor, *oldBytes);
    else
        std::ignore = calls.ftruncate(descriptor, old.st_size); // gives back at least the room that was reserved
    return false;
}
