#include "files/posix/SafeWrite.h"

#include "files/posix/Exchange.h"
#include "files/posix/LinkedFile.h"
#include "files/posix/OpenFile.h"
#include "files/posix/RewriteInPlace.h"

#include <cerrno>
#include <new>
#include <optional>

namespace fs = std::filesystem;

namespace
{

/// Opens nothing but what may be written; a pipe or a terminal is opened without waiting or becoming ours.
constexpr int existing = O_NONBLOCK | O_NOCTTY;

Exchange exchangeLinkedFile(FileSystemCalls& calls, const fs::path& path, const struct stat* old,
                            std::string_view bytes)
{
    const std::optional<fs::path> target = linkedFile(calls, path);
    return target ? exchangeFile(calls, *target, old, bytes) : Exchange::Refused;
}

bool replaceContents(FileSystemCalls& calls, const fs::path& path, int old, std::string_view bytes)
{
    struct stat state = {};
    if (calls.fstat(old, &state) != 0 || !S_ISREG(state.st_mode))
        return false;
    const Exchange exchange = exchangeLinkedFile(calls, path, &state, bytes);
    if (exchange == Exchange::Refused)
        return rewriteInPlace(calls, old, bytes);
    return exchange == Exchange::Done;
}

} // namespace

bool writeFileSafely(const fs::path& path, std::string_view bytes, FileSystemCalls& calls)
try
{
    const OpenFile old(calls, path, O_RDWR | existing);
    if (old.isOpen())
        return replaceContents(calls, path, old.get(), bytes);
    if (errno == ENOENT)
        return exchangeLinkedFile(calls, path, nullptr, bytes) == Exchange::Done;
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
