#pragma once

#include <cstddef>
#include <sys/stat.h>
#include <sys/types.h>

/// The calls to the system that writing a file is made of. Each one takes, does and answers what the system's own call
/// of that name does, `errno` included.
///
/// Virtual, so that a test can let any one of them fail and see their order; the program itself never derives from it.
class FileSystemCalls
{
public:
    FileSystemCalls() = default;
    virtual ~FileSystemCalls() = default;
    FileSystemCalls(const FileSystemCalls&) = delete;
    FileSystemCalls& operator=(const FileSystemCalls&) = delete;

    virtual int open(const char* path, int flags, mode_t mode);
    virtual int close(int descriptor);
    virtual int flock(int descriptor, int operation);
    virtual int stat(const char* path, struct stat* state);
    virtual int fstat(int descriptor, struct stat* state);
    virtual ssize_t readlink(const char* path, char* target, std::size_t size);
    virtual ssize_t pread(int descriptor, void* bytes, std::size_t size, off_t offset);
    virtual ssize_t pwrite(int descriptor, const void* bytes, std::size_t size, off_t offset);
    virtual int fsync(int descriptor);
    virtual int ftruncate(int descriptor, off_t size);
    /// @return the error itself, 0 when there is none
    virtual int posixFallocate(int descriptor, off_t offset, off_t size);
    virtual int fchown(int descriptor, uid_t owner, gid_t group);
    virtual int fchmod(int descriptor, mode_t mode);
    virtual ssize_t flistxattr(int descriptor, char* names, std::size_t size);
    virtual ssize_t fgetxattr(int descriptor, const char* name, void* value, std::size_t size);
    virtual int fsetxattr(int descriptor, const char* name, const void* value, std::size_t size, int flags);
    virtual int fremovexattr(int descriptor, const char* name);
    virtual int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags);
    virtual int rename(const char* from, const char* to);
    virtual int unlink(const char* path);
};
