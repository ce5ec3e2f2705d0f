#pragma once

#include "files/posix/FileSystemCalls.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <functional>
#include <limits>
#include <map>
#include <string>
#include <vector>

/// Calls to the system that do what they are asked, except those that a test wants to fail, and that note what was
/// done.
class FaultyCalls : public FileSystemCalls
{
public:
    /// The call with this number, counted from 1, fails once with `error`; 0 lets all succeed.
    std::size_t failingCall = 0;
    int error = EIO;

    /// Calls that fail always, with their error.
    std::map<std::string, int> refused;

    /// No single call writes more bytes than this.
    std::size_t longestWrite = std::numeric_limits<std::size_t>::max();

    /// Told of every call before it is made, whether it is to fail or not.
    std::function<void(const std::string& call)> onCall = [](const std::string&) {};

    /// The names of all calls in their order. Some tell more: "open unnamed" and "open named" make a fresh file,
    /// "fsync file" and "fsync folder" tell what is flushed.
    std::vector<std::string> made;

    /// What was flushed, in this order.
    std::vector<ino_t> flushed;

    /// True when the call was made.
    bool has(const char* call) const { return std::find(made.begin(), made.end(), call) != made.end(); }

    int open(const char* path, int flags, mode_t mode) override
    {
        const bool unnamed = (flags & O_TMPFILE) == O_TMPFILE;
        const bool named = (flags & O_EXCL) != 0;
        const char* const name = unnamed ? "open unnamed" : named ? "open named" : "open";
        return fails(name) ? -1 : FileSystemCalls::open(path, flags, mode);
    }
    int close(int descriptor) override
    {
        const bool failing = fails("close"); // the system's own leaves the file closed even then
        const int result = FileSystemCalls::close(descriptor);
        return failing ? -1 : result;
    }
    int flock(int descriptor, int operation) override
    {
        return fails("flock") ? -1 : FileSystemCalls::flock(descriptor, operation);
    }
    int stat(const char* path, struct stat* state) override
    {
        return fails("stat") ? -1 : FileSystemCalls::stat(path, state);
    }
    int fstat(int descriptor, struct stat* state) override
    {
        return fails("fstat") ? -1 : FileSystemCalls::fstat(descriptor, state);
    }
    ssize_t readlink(const char* path, char* target, std::size_t size) override
    {
        return fails("readlink") ? -1 : FileSystemCalls::readlink(path, target, size);
    }
    ssize_t pread(int descriptor, void* bytes, std::size_t size, off_t offset) override
    {
        return fails("pread") ? -1 : FileSystemCalls::pread(descriptor, bytes, size, offset);
    }
    ssize_t pwrite(int descriptor, const void* bytes, std::size_t size, off_t offset) override
    {
        return fails("pwrite") ? -1 : FileSystemCalls::pwrite(descriptor, bytes, std::min(size, longestWrite), offset);
    }
    int fsync(int descriptor) override
    {
        struct stat state = {};
        ::fstat(descriptor, &state);
        flushed.push_back(state.st_ino);
        return fails(S_ISDIR(state.st_mode) ? "fsync folder" : "fsync file") ? -1 : 0; // without waiting for the disk
    }
    int ftruncate(int descriptor, off_t size) override
    {
        return fails("ftruncate") ? -1 : FileSystemCalls::ftruncate(descriptor, size);
    }
    int posixFallocate(int descriptor, off_t offset, off_t size) override
    {
        return fails("posixFallocate") ? errno : FileSystemCalls::posixFallocate(descriptor, offset, size);
    }
    int fchown(int descriptor, uid_t owner, gid_t group) override
    {
        return fails("fchown") ? -1 : FileSystemCalls::fchown(descriptor, owner, group);
    }
    int fchmod(int descriptor, mode_t mode) override
    {
        return fails("fchmod") ? -1 : FileSystemCalls::fchmod(descriptor, mode);
    }
    ssize_t flistxattr(int descriptor, char* names, std::size_t size) override
    {
        return fails("flistxattr") ? -1 : FileSystemCalls::flistxattr(descriptor, names, size);
    }
    ssize_t fgetxattr(int descriptor, const char* name, void* value, std::size_t size) override
    {
        return fails("fgetxattr") ? -1 : FileSystemCalls::fgetxattr(descriptor, name, value, size);
    }
    int fsetxattr(int descriptor, const char* name, const void* value, std::size_t size, int flags) override
    {
        return fails("fsetxattr") ? -1 : FileSystemCalls::fsetxattr(descriptor, name, value, size, flags);
    }
    int fremovexattr(int descriptor, const char* name) override
    {
        return fails("fremovexattr") ? -1 : FileSystemCalls::fremovexattr(descriptor, name);
    }
    int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) override
    {
        return fails("linkat") ? -1 : FileSystemCalls::linkat(fromFolder, from, toFolder, to, flags);
    }
    int rename(const char* from, const char* to) override
    {
        return fails("rename") ? -1 : FileSystemCalls::rename(from, to);
    }
    int unlink(const char* path) override { return fails("unlink") ? -1 : FileSystemCalls::unlink(path); }

protected:
    /// Notes the call. @return true, with `errno` set, when it is to fail
    bool fails(const char* call)
    {
        made.emplace_back(call);
        onCall(call);
        const auto always = refused.find(call);
        if (made.size() == failingCall)
            errno = error;
        else if (always != refused.end())
            errno = always->second;
        else
            return false;
        return true;
    }
};
