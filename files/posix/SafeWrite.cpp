#include "files/posix/SafeWrite.h"

#include "files/posix/Exchange.h"
#include "files/posix/FileSizeSignal.h"
#include "files/posix/LinkedFile.h"
#include "files/posix/OpenFile.h"
#include "files/posix/RewriteInPlace.h"
#include "files/posix/Strays.h"

#include <cerrno>
#include <new>
#include <optional>

namespace fs = std::filesystem;

// How a file is written:
//
//   nothing of that name       a fresh file takes the name; where a link leads to nothing, the name at its end
//   one name                   a fresh file takes its place; rewritten in place where the folder refuses that
//   several names              rewritten in place: a fresh file would leave the old contents to the other names
//   not a regular file         not at all: nothing can be put back into a pipe
//   write-protected            not at all, although its folder might let it be replaced
//
// Opening the old file for writing is what tells the last case: a fresh file needs the right to the folder only.

namespace
{

/// Opens nothing but what may be written; a pipe or a terminal is opened without waiting or becoming ours.
constexpr int existing = O_NONBLOCK | O_NOCTTY;

/// @param old  the file to be replaced; null when there is none
Exchange exchangeLinkedFile(FileSystemCalls& calls, const fs::path& path, const OldFile* old, std::string_view bytes)
{
    const std::optional<fs::path> target = linkedFile(calls, path);
    if (!target)
        return Exchange::Refused;
    // Before the fresh file is made: strays of a large map may have taken the room that it needs.
    clearStrays(calls, *target);
    const bool hasOtherNames = old != nullptr && old->state.st_nlink > 1;
    return hasOtherNames ? Exchange::Refused : exchangeFile(calls, *target, old, bytes);
}

/// False when the name has gone, or leads to another file now.
bool stillLeadsTo(FileSystemCalls& calls, const fs::path& path, const struct stat& file)
{
    // Somebody may have put another file in its place while it was rewritten. The bytes are then in a file that nobody
    // finds again, and saying that they are saved would be wrong.
    struct stat now = {};
    if (calls.stat(path.c_str(), &now) != 0)
        return errno != ENOENT;
    return now.st_dev == file.st_dev && now.st_ino == file.st_ino;
}

bool replaceContents(FileSystemCalls& calls, const fs::path& path, int descriptor, std::string_view bytes)
{
    OldFile old{descriptor, {}};
    if (calls.fstat(descriptor, &old.state) != 0 || !S_ISREG(old.state.st_mode))
        return false;
    const Exchange exchange = exchangeLinkedFile(calls, path, &old, bytes);
    if (exchange == Exchange::Refused)
        return rewriteInPlace(calls, descriptor, bytes) && stillLeadsTo(calls, path, old.state);
    return exchange == Exchange::Done;
}

} // namespace

bool writeFileSafely(const fs::path& path, std::string_view bytes, FileSystemCalls& calls)
try
{
    const FileSizeSignalHeld held;
    const OpenFile old(calls, path, O_RDWR | existing);
    if (old.isOpen())
        return replaceContents(calls, path, old.get(), bytes);
    if (errno == ENOENT)
        return exchangeLinkedFile(calls, path, nullptr, bytes) == Exchange::Done;
    // A file that may not be read may still be saved to, but there is nothing to put back when that fails.
    const OpenFile writeOnly(calls, path, O_WRONLY | existing);
    return writeOnly.isOpen() && replaceContents(calls, path, writeOnly.get(), bytes);
}
catch (const std::bad_alloc&)
{
    return false;
}

bool writeFileSafely(const fs::path& path, std::string_view bytes)
{
    FileSystemCalls calls;
    return writeFileSafely(path, bytes, calls);
}
