#include "files/posix/Strays.h"

#include "files/StrayNames.h"
#include "files/posix/OpenFile.h"

#include <chrono>
#include <cstdint>
#include <sys/file.h>
#include <tuple>
#include <unistd.h>

namespace fs = std::filesystem;

// A stray and a file in the making look alike. What tells them apart is a lock on the open file, which ends with the
// program that holds it, however that ends: nobody can forget to take it back.

namespace
{

/// Asks for the lock without waiting for it.
bool reserve(FileSystemCalls& calls, int descriptor)
{
    return calls.flock(descriptor, LOCK_EX | LOCK_NB) == 0;
}

void removeUnlessInUse(FileSystemCalls& calls, const fs::path& stray)
{
    // Whatever else has got such a name is neither followed nor waited for, be it a link or a pipe.
    const OpenFile file(calls, stray, O_WRONLY | O_NOFOLLOW | O_NONBLOCK);
    if (file.isOpen() && reserve(calls, file.get()))
        calls.unlink(stray.c_str());
}

} // namespace

fs::path freshName(const fs::path& target)
{
    // The time serves where the system has no chance numbers; a name that is taken is never written over.
    auto number = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
    std::ignore = ::getentropy(&number, sizeof number);
    return strayName(target, number);
}

void markInUse(FileSystemCalls& calls, int descriptor)
{
    // Where a file system has no locks this fails, but so does the lock that clearing asks for: strays stay there, and
    // no file in the making is lost.
    reserve(calls, descriptor);
}

void clearStrays(FileSystemCalls& calls, const fs::path& target)
{
    for (const fs::path& stray : straysOf(target))
        removeUnlessInUse(calls, stray);
}
