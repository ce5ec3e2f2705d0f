#include "files/posix/Exchange.h"

#include "files/StrayNames.h"
#include "files/posix/FileBytes.h"
#include "files/posix/FreshFile.h"
#include "files/posix/OpenFile.h"

namespace fs = std::filesystem;

// What a power cut leaves after each step:
//
//   the fresh file is made          the old contents; an unnamed fresh file is gone, a named one is a stray
//   it has the old one's access     the same
//   it is written and flushed       the same, though the new contents are on the disk
//   it takes the name               the old contents or the new, whole in both cases
//   the folder is flushed           the new contents
//
// The flush before the name is what it all depends on. Without it some file systems put the name on the disk first, and
// a power cut leaves an empty file under it.

namespace
{

/// Makes the new name last through a power cut. Some file systems do not offer it; the contents are safe already.
void flushFolder(FileSystemCalls& calls, const fs::path& folder)
{
    const OpenFile handle(calls, folder, O_RDONLY | O_DIRECTORY);
    if (handle.isOpen())
        calls.fsync(handle.get());
}

Exchange exchangeThrough(FreshFile::Kind kind, FileSystemCalls& calls, const fs::path& target, const OldFile* old,
                         std::string_view bytes, Access access)
{
    constexpr mode_t everybody = 0666; // the system takes the umask off
    constexpr mode_t onlyMe = 0600;    // until the old permissions are taken over
    FreshFile fresh(calls, target, kind, old == nullptr ? everybody : onlyMe);
    if (!fresh.isOpen())
        return Exchange::Refused;
    const bool accessKept = old == nullptr || takeOverAccess(calls, fresh.descriptor(), *old);
    if (!accessKept && access == Access::MustBeKept)
        return Exchange::Refused;
    // Not "refused", which would have the old file rewritten in place: a disk that is full or fails is no better there.
    if (!writeAll(calls, fresh.descriptor(), bytes) || calls.fsync(fresh.descriptor()) != 0)
        return Exchange::Failed;
    if (!fresh.takeName())
        return Exchange::Refused;
    flushFolder(calls, folderOf(target));
    return Exchange::Done;
}

} // namespace

Exchange exchangeFile(FileSystemCalls& calls, const fs::path& target, const OldFile* old, std::string_view bytes,
                      Access access)
{
    // A file without a name leaves no stray, however the program ends. Network and older file systems have no such
    // files, and naming one takes /proc, which a container need not have.
    const Exchange unnamed = exchangeThrough(FreshFile::Kind::Unnamed, calls, target, old, bytes, access);
    if (unnamed != Exchange::Refused)
        return unnamed;
    return exchangeThrough(FreshFile::Kind::Named, calls, target, old, bytes, access);
}
