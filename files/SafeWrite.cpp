#include "files/SafeWrite.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <system_error>
#include <tuple>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{

/// Closes an open file at the end of its scope.
class FileHandle
{
public:
    FileHandle(const fs::path& path, int flags, mode_t mode = 0)
        : descriptor(::open(path.c_str(), flags | O_CLOEXEC, mode))
    {
    }
    ~FileHandle()
    {
        if (isOpen())
            ::close(descriptor);
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    bool isOpen() const { return descriptor >= 0; }
    int get() const { return descriptor; }

private:
    int descriptor;
};

/// Removes the fresh file unless it has taken its final name.
class RemovedAtEnd
{
public:
    explicit RemovedAtEnd(const fs::path& name) : path(name) {}
    ~RemovedAtEnd()
    {
        if (!kept)
            ::unlink(path.c_str());
    }
    RemovedAtEnd(const RemovedAtEnd&) = delete;
    RemovedAtEnd& operator=(const RemovedAtEnd&) = delete;

    void keep() { kept = true; }

private:
    const fs::path& path;
    bool kept = false;
};

/// How putting a fresh file in the old one's place ended.
enum class Exchange
{
    Done,
    Refused, ///< the folder does not allow it
    Failed   ///< the bytes did not get to the disk
};

/// Follows symbolic links by name, also to where nothing exists yet.
fs::path linkedFile(fs::path path)
{
    constexpr int longestChain = 40;
    for (int links = 0; links < longestChain; ++links)
    {
        std::error_code error;
        const fs::path target = fs::read_symlink(path, error);
        if (error)
            break;
        path = path.parent_path() / target;
    }
    return path;
}

/// A name in the folder of `target` that nobody can foresee. Short, whatever the length of the target's own name.
fs::path freshName(const fs::path& target)
{
    std::uint64_t number = 0;
    if (::getentropy(&number, sizeof number) != 0)
        return {};
    std::array<char, 32> name{};
    std::snprintf(name.data(), name.size(), ".saving-%016llx", static_cast<unsigned long long>(number));
    return target.parent_path() / name.data();
}

bool writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty())
    {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
            return false;
        if (written > 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// Gives the fresh file the old one's owner and permissions.
/// @return false when that would let in other people than before, or shut some out
bool takeOverAccess(int descriptor, const struct stat& old)
{
    const bool ownerKept = ::fchown(descriptor, old.st_uid, old.st_gid) == 0;
    if (!ownerKept && ::fchown(descriptor, static_cast<uid_t>(-1), old.st_gid) != 0)
        return false;
    const mode_t wanted = old.st_mode & (ownerKept ? 07777U : 0777U);
    return ::fchmod(descriptor, wanted) == 0;
}

/// Makes the new name last through a power cut. Some file systems do not offer it; the contents are safe already.
void flushFolder(const fs::path& file)
{
    const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
    const FileHandle handle(folder, O_RDONLY | O_DIRECTORY);
    if (handle.isOpen())
        ::fsync(handle.get());
}

/// @param old  what the file to be replaced is like; null when there is none
Exchange exchangeFile(const fs::path& target, const struct stat* old, std::string_view bytes)
{
    constexpr mode_t everybody = 0666; // the system takes the umask off
    constexpr mode_t onlyMe = 0600;    // until the old permissions are taken over
    const fs::path fresh = freshName(target);
    const FileHandle file(fresh, O_WRONLY | O_CREAT | O_EXCL, old == nullptr ? everybody : onlyMe);
    if (!file.isOpen())
        return Exchange::Refused;
    RemovedAtEnd freshFile(fresh);
    if (old != nullptr && !takeOverAccess(file.get(), *old))
        return Exchange::Refused;
    if (!writeAll(file.get(), bytes) || ::fsync(file.get()) != 0)
        return Exchange::Failed;
    if (::rename(fresh.c_str(), target.c_str()) != 0)
        return Exchange::Refused;
    freshFile.keep();
    flushFolder(target);
    return Exchange::Done;
}

/// Asks the disk for the room by which a file grows; a file system that cannot promise it is taken at its best.
bool reserveGrowth(int descriptor, off_t oldSize, off_t newSize)
{
    if (newSize <= oldSize)
        return true;
    const int error = ::posix_fallocate(descriptor, oldSize, newSize - oldSize);
    if (error == 0 || error == EOPNOTSUPP || error == EINVAL)
        return true;
    std::ignore = ::ftruncate(descriptor, oldSize); // gives back what was reserved before the disk ran full
    return false;
}

bool rewriteInPlace(int descriptor, off_t oldSize, std::string_view bytes)
{
    const auto newSize = static_cast<off_t>(bytes.size());
    return reserveGrowth(descriptor, oldSize, newSize) && writeAll(descriptor, bytes) &&
           ::ftruncate(descriptor, newSize) == 0 && ::fsync(descriptor) == 0;
}

} // namespace

bool writeFileSafely(const fs::path& path, std::string_view bytes)
try
{
    const FileHandle old(path, O_WRONLY | O_NONBLOCK | O_NOCTTY);
    if (!old.isOpen())
        return errno == ENOENT && exchangeFile(linkedFile(path), nullptr, bytes) == Exchange::Done;

    struct stat state = {};
    if (::fstat(old.get(), &state) != 0 || !S_ISREG(state.st_mode))
        return false;
    const Exchange exchange = exchangeFile(linkedFile(path), &state, bytes);
    if (exchange == Exchange::Refused)
        return rewriteInPlace(old.get(), state.st_size, bytes);
    return exchange == Exchange::Done;
}
catch (const std::bad_alloc&)
{
    return false;
}
