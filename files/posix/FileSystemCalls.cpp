#include "files/posix/FileSystemCalls.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

int FileSystemCalls::open(const char* path, int flags, mode_t mode)
{
    return ::open(path, flags, mode);
}

int FileSystemCalls::close(int descriptor)
{
    return ::close(descriptor);
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

int FileSystemCalls::rename(const char* from, const char* to)
{
    return ::rename(from, to);
}

int FileSystemCalls::unlink(const char* path)
{
    return ::unlink(path);
}
