#include "files/StrayNames.h"
#include "files/windows/Exchange.h"
#include "files/windows/FileBytes.h"

#include <array>
#include <cstdint>
#include <cwchar>

namespace fs = std::filesystem;

// What is in the folder after each step of an exchange:
//
//   the fresh file is written        plant.csv (old)         .saving-... (new, half of it)
//   it is flushed and closed         plant.csv (old)         .saving-... (new)
//   the exchange is half-way         plant.csv.old-...       .saving-... (new)
//   it is done                       plant.csv.old-...       plant.csv (new)
//   the old file is deleted                                  plant.csv (new)
//
// The system's exchange is not one step as a rename is elsewhere: for a moment nothing has the name. That is why the
// old file gets a name by which its owner knows it again, and why it is put back when the exchange stops there.

namespace
{

/// A number that no other running program makes.
std::uint64_t uniqueNumber()
{
    LARGE_INTEGER ticks{};
    ::QueryPerformanceCounter(&ticks);
    return (static_cast<std::uint64_t>(::GetCurrentProcessId()) << 40U) ^ static_cast<std::uint64_t>(ticks.QuadPart);
}

/// Removes a file at the end of the scope, when it is still there then.
class RemovedAtEnd
{
public:
    explicit RemovedAtEnd(const fs::path& name) : path(name) {}
    ~RemovedAtEnd() { ::DeleteFileW(path.c_str()); }
    RemovedAtEnd(const RemovedAtEnd&) = delete;
    RemovedAtEnd& operator=(const RemovedAtEnd&) = delete;

private:
    const fs::path& path;
};

/// Where the old file stands while the fresh one takes its place. Its own name shows through, should the program end
/// in that moment.
fs::path nameMeanwhile(const fs::path& target)
{
    std::array<wchar_t, 32> end{};
    std::swprintf(end.data(), end.size(), L".old-%016llx", static_cast<unsigned long long>(uniqueNumber()));
    return fs::path(target) += end.data();
}

/// A hidden file stays hidden. The system's exchange itself speaks of access rights and streams only.
void takeOverAttributes(const fs::path& fresh, const fs::path& target)
{
    const DWORD attributes = ::GetFileAttributesW(target.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES)
        ::SetFileAttributesW(fresh.c_str(), attributes);
}

bool moveWithoutReplacing(const fs::path& from, const fs::path& to)
{
    return ::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH) != 0;
}

/// An exchange that stops half-way has taken the old name away already. The old file then gets it back, or the fresh
/// one gets it when even that fails; where nothing was moved, neither can happen.
bool takePlaceOf(const fs::path& target, const fs::path& fresh, ReplaceCall replace)
{
    const fs::path old = nameMeanwhile(target);
    takeOverAttributes(fresh, target);
    const bool exchanged =
        replace(target.c_str(), fresh.c_str(), old.c_str(), REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) != 0;
    const bool stands = exchanged || (!moveWithoutReplacing(old, target) && moveWithoutReplacing(fresh, target));
    if (stands)
        ::DeleteFileW(old.c_str());
    return stands;
}

void clearStrays(const fs::path& target)
{
    for (const fs::path& stray : straysOf(target))
        ::DeleteFileW(stray.c_str()); // refused while it is being written
}

} // namespace

Exchange exchangeFile(const fs::path& target, bool targetExists, std::string_view bytes, ReplaceCall replace)
{
    // First, as strays of a large map may have taken the room that the fresh file needs.
    clearStrays(target);
    const fs::path fresh = strayName(target, uniqueNumber());
    const RemovedAtEnd removed(fresh);
    FileHandle file(fresh, GENERIC_WRITE, CREATE_NEW, FileHandle::Sharing::ReadingOnly);
    if (!file.isOpen())
        return Exchange::Refused;
    if (!overwrite(file.get(), bytes))
        return Exchange::Failed;
    file.close(); // an open file takes nobody's place
    const bool done = targetExists ? takePlaceOf(target, fresh, replace) : moveWithoutReplacing(fresh, target);
    return done ? Exchange::Done : Exchange::Refused;
}

bool copyFile(const fs::path& file, const fs::path& copy)
{
    clearStrays(copy);
    const fs::path fresh = strayName(copy, uniqueNumber());
    const RemovedAtEnd removed(fresh);
    if (::CopyFileW(file.c_str(), fresh.c_str(), TRUE) == 0)
        return false;
    FileHandle made(fresh, GENERIC_WRITE, OPEN_EXISTING, FileHandle::Sharing::ReadingOnly);
    const bool flushed = made.isOpen() && ::FlushFileBuffers(made.get()) != 0;
    made.close();
    return flushed &&
           ::MoveFileExW(fresh.c_str(), copy.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}
