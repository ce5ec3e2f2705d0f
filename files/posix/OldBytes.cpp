#include "files/posix/OldBytes.h"

#include "files/posix/Exchange.h"
#include "files/posix/FileBytes.h"
#include "files/posix/FileSizeSignal.h"
#include "files/posix/LinkedFile.h"
#include "files/posix/OpenFile.h"
#include "files/posix/Strays.h"

#include <new>
#include <optional>
#include <string>

namespace fs = std::filesystem;

namespace
{

bool copyTo(const fs::path& copy, FileSystemCalls& calls, int descriptor)
{
    OldFile old{descriptor, {}};
    if (calls.fstat(descriptor, &old.state) != 0 || !S_ISREG(old.state.st_mode))
        return false;
    const std::optional<std::string> bytes = readAll(calls, descriptor);
    if (!bytes)
        return false;
    clearStrays(calls, copy);
    return exchangeFile(calls, copy, &old, *bytes, Access::AsFarAsAllowed) == Exchange::Done;
}

} // namespace

bool keepOldBytes(const fs::path& path, FileSystemCalls& calls)
try
{
    const FileSizeSignalHeld held;
    const std::optional<fs::path> file = linkedFile(calls, path);
    if (!file)
        return false;
    const OpenFile old(calls, *file, O_RDONLY | O_NONBLOCK | O_NOCTTY);
    return old.isOpen() && copyTo(fs::path(*file) += '~', calls, old.get());
}
catch (const std::bad_alloc&)
{
    return false;
}

bool keepOldBytes(const fs::path& path)
{
    FileSystemCalls calls;
    return keepOldBytes(path, calls);
}
