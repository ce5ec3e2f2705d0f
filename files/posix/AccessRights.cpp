#include "files/posix/AccessRights.h"

bool takeOverAccess(FileSystemCalls& calls, int descriptor, const struct stat& old)
{
    const bool ownerKept = calls.fchown(descriptor, old.st_uid, old.st_gid) == 0;
    if (!ownerKept && calls.fchown(descriptor, static_cast<uid_t>(-1), old.st_gid) != 0)
        return false;
    const mode_t wanted = old.st_mode & (ownerKept ? 07777U : 0777U);
    return calls.fchmod(descriptor, wanted) == 0;
}
