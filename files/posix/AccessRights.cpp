#include "files/posix/AccessRights.h"

#include "files/posix/Attributes.h"

bool takeOverAccess(FileSystemCalls& calls, int descriptor, const OldFile& old)
{
    const bool ownerKept = calls.fchown(descriptor, old.state.st_uid, old.state.st_gid) == 0;
    if (!ownerKept && calls.fchown(descriptor, static_cast<uid_t>(-1), old.state.st_gid) != 0)
        return false;
    const mode_t wanted = old.state.st_mode & (ownerKept ? 07777U : 0777U);
    return takeOverAttributes(calls, old.descriptor, descriptor) && calls.fchmod(descriptor, wanted) == 0;
}
