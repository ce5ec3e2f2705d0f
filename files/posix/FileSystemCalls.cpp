#include "files/posix/FileSystemCalls.h"

#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/xattr.h>
#include <unistd.h>

// One line each, on purpose: nothing is tried again, changed or understood here. What a failure means and whether a
// call is repeated after a signal is up to the callers, so a test that stands in for the system sees all that they do.
//
// `posixFallocate` is the odd one: it answers the error itself and leaves `errno` alone, as the system's call does.

int FileSystemCalls::open(const char* path, int flags, mode_t mode)
{
    return ::open(path, flags, mode);
}

int FileSystemCalls::close(int descriptor)
{
    return ::close(descriptor);
}

int FileSystemCalls::flock(int descriptor, int operation)
{
    return ::flock(descriptor, operation);
}

int FileSystemCalls::stat(const char* path, struct stat* state)
{
    return ::stat(path, state);
}

int FileSystemCalls::fstat(int descriptor, struct stat* state)
{
    return ::fstat(descriptor, state);
}

ssize_t FileSystemCalls::readlink(const char* path, char* target, std::size_t size)
{
    return ::readlink(path, target, size);
}

ssize_t FileSystemCalls::pread(int descriptor, void* bytes, std::size_t size, off_t offset)
{
    return ::pread(descriptor, bytes, size, offset);
}

ssize_t FileSystemCalls::pwrite(int descriptor, const void* bytes, std::size_t size, off_t offset)
{
    return ::pwrite(descriptor, bytes, size, offset);
}

int FileSystemCalls::fsync(int descriptor)
{
    return ::fsync(descriptor);
}

int FileSystemCalls::ftruncate(int descriptor, off_t size)
{
    return ::ftruncate(descriptor, size);
}

int FileSystemCalls::posixFallocate(int descriptor, off_t offset, off_t size)
{
    return ::posix_fallocate(descriptor, offset, size);
}

int FileSystemCalls::fchown(int descriptor, uid_t owner, gid_t group)
{
    return ::fchown(descriptor, owner, group);
}

int FileSystemCalls::fchmod(int descriptor, mode_t mode)
{
    return ::fchmod(descriptor, mode);
}

ssize_t FileSystemCalls::flistxattr(int descriptor, char* names, std::size_t size)
{
    return ::flistxattr(descriptor, names, size);
}

ssize_t FileSystemCalls::fgetxattr(int descriptor, const char* name, void* value, std::size_t size)
{
    return ::fgetxattr(descriptor, name, value, size);
}

int FileSystemCalls::fsetxattr(int descriptor, const char* name, const void* value, std::size_t size, int flags)
{
    return ::fsetxattr(descriptor, name, value, size, flags);
}

int FileSystemCalls::fremovexattr(int descriptor, const char* name)
{
    return ::fremovexattr(descriptor, name);
}

int FileSystemCalls::linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags)
{
    return ::linkat(fromFolder, from, toFolder, to, flags);
}

int FileSystemCalls::rename(const char* from, const char* to)
{
    return ::rename(from, to);
}

int FileSystemCalls::unlink(const char* path)
{
    return ::unlink(path);
}
