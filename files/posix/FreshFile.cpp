#include "files/posix/FreshFile.h"

#include "files/StrayNames.h"
#include "files/posix/Strays.h"

#include <string>
#include <utility>

namespace fs = std::filesystem;

// The two kinds on their way to the target's name:
//
//   Unnamed    no name --link--> target, when nothing has that name
//              no name --link--> .saving-... --rename--> target, when something has
//   Named      .saving-... --rename--> target
//
// A link never takes the place of a file, a rename does it in one step. So the way over a name of its own is needed
// exactly where there is an old file.

FreshFile::FreshFile(FileSystemCalls& systemCalls, fs::path target, Kind kind, mode_t mode)
    : calls(systemCalls), finalName(std::move(target)), ownName(freshName(finalName)),
      file(calls, kind == Kind::Unnamed ? folderOf(finalName) : ownName,
           kind == Kind::Unnamed ? O_WRONLY | O_TMPFILE : O_WRONLY | O_CREAT | O_EXCL, mode),
      hasOwnName(kind == Kind::Named && file.isOpen())
{
    // Another run that saves to the same target clears strays away, and this one must not look like one. Should it come
    // in the moment before, the name is gone, taking the target's name fails, and the old file is rewritten in place.
    if (file.isOpen())
        markInUse(calls, file.get());
}

FreshFile::~FreshFile()
{
    // The name only, and only while it is this file's: by its target's name it is meant to stay.
    if (hasOwnName)
        calls.unlink(ownName.c_str());
}

bool FreshFile::takeName()
{
    if (!hasOwnName)
    {
        if (linkAs(finalName))
            return true;
        hasOwnName = linkAs(ownName);
    }
    if (!hasOwnName || calls.rename(ownName.c_str(), finalName.c_str()) != 0)
        return false;
    hasOwnName = false;
    return true;
}

/// Names an unnamed file, never in place of another. Its number among the open files serves where a descriptor alone
/// would need a privilege (Linux before 6.10).
bool FreshFile::linkAs(const fs::path& path)
{
    const std::string openFile = "/proc/self/fd/" + std::to_string(file.get());
    return calls.linkat(AT_FDCWD, openFile.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0;
}
