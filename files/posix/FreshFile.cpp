#include "files/posix/FreshFile.h"

#include "files/StrayNames.h"
#include "files/posix/Strays.h"

#include <string>
#include <utility>

namespace fs = std::filesystem;

FreshFile::FreshFile(FileSystemCalls& systemCalls, fs::path target, Kind kind, mode_t mode)
    : calls(systemCalls), finalName(std::move(target)), ownName(freshName(finalName)),
      file(calls, kind == Kind::Unnamed ? folderOf(finalName) : ownName,
           kind == Kind::Unnamed ? O_WRONLY | O_TMPFILE : O_WRONLY | O_CREAT | O_EXCL, mode),
      hasOwnName(kind == Kind::Named && file.isOpen())
{
    if (file.isOpen())
        markInUse(calls, file.get());
}

FreshFile::~FreshFile()
{
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
