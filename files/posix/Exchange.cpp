#include "files/posix/Exchange.h"

#include "files/posix/AccessRights.h"
#include "files/posix/FileBytes.h"
#include "files/posix/OpenFile.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <tuple>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{

/// Removes the fresh file unless it has taken its final name.
class RemovedAtEnd
{
public:
    RemovedAtEnd(FileSystemCalls& systemCalls, const fs::path& name) : calls(systemCalls), path(name) {}
    ~RemovedAtEnd()
    {
        if (!kept)
            calls.unlink(path.c_str());
    }
    RemovedAtEnd(const RemovedAtEnd&) = delete;
    RemovedAtEnd& operator=(const RemovedAtEnd&) = delete;

    void keep() { kept = true; }

private:
    FileSystemCalls& calls;
    const fs::path& path;
    bool kept = false;
};

/// A name in the folder of `target` that nobody can foresee. Short, whatever the length of the target's own name.
fs::path freshName(const fs::path& target)
{
    // The time serves where the system has no chance numbers; a name that is taken is never written over.
    auto number = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
    std::ignore = ::getentropy(&number, sizeof number);
    std::array<char, 32> name{};
    std::snprintf(name.data(), name.size(), ".saving-%016llx", static_cast<unsigned long long>(number));
    return target.parent_path() / name.data();
}

/// Makes the new name last through a power cut. Some file systems do not offer it; the contents are safe already.
void flushFolder(FileSystemCalls& calls, const fs::path& file)
{
    const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
    const OpenFile handle(calls, folder, O_RDONLY | O_DIRECTORY);
    if (handle.isOpen())
        calls.fsync(handle.get());
}

} // namespace

Exchange exchangeFile(FileSystemCalls& calls, const fs::path& target, const struct stat* old, std::string_view bytes)
{
    constexpr mode_t everybody = 0666; // the system takes the umask off
    constexpr mode_t onlyMe = 0600;    // until the old permissions are taken over
    const fs::path fresh = freshName(target);
    const OpenFile file(calls, fresh, O_WRONLY | O_CREAT | O_EXCL, old == nullptr ? everybody : onlyMe);
    if (!file.isOpen())
        return Exchange::Refused;
    RemovedAtEnd freshFile(calls, fresh);
    if (old != nullptr && !takeOverAccess(calls, file.get(), *old))
        return Exchange::Refused;
    if (!writeAll(calls, file.get(), bytes) || calls.fsync(file.get()) != 0)
        return Exchange::Failed;
    if (calls.rename(fresh.c_str(), target.c_str()) != 0)
        return Exchange::Refused;
    freshFile.keep();
    flushFolder(calls, target);
    return Exchange::Done;
}
