#include "files/posix/AccessRights.h"

#include "files/posix/Attributes.h"

// Owner, then attributes, then permissions, because each of the first two changes the permissions: a new owner takes
// the set-user and set-group bits off, and an access list sets those of the group.

bool takeOverAccess(FileSystemCalls& calls, int descriptor, const OldFile& old)
{
    // Only a privileged user may give a file away, while any member of a group may give it to that group. A file that
    // several people save in turns belongs to the last of them then, and the group keeps its rights.
    const bool ownerKept = calls.fchown(descriptor, old.state.st_uid, old.state.st_gid) == 0;
    if (!ownerKept && calls.fchown(descriptor, static_cast<uid_t>(-1), old.state.st_gid) != 0)
        return false;
    // The bits above 0777 run a program with the rights of its owner, who is another one now.
    const mode_t wanted = old.state.st_mode & (ownerKept ? 07777U : 0777U);
    return takeOverAttributes(calls, old.descriptor, descriptor) && calls.fchmod(descriptor, wanted) == 0;
}
