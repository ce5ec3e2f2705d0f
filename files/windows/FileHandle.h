#pragma once

#include <filesystem>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

/// An open file, closed at the end of its scope or before.
class FileHandle
{
public:
    /// How other programs may use the file meanwhile.
    enum class Sharing
    {
        Everything,
        ReadingOnly ///< nobody may write, move or remove it
    };

    /// @param access    GENERIC_READ, GENERIC_WRITE or both
    /// @param creation  CREATE_NEW or OPEN_EXISTING
    FileHandle(const std::filesystem::path& path, DWORD access, DWORD creation, Sharing sharing = Sharing::Everything)
        : handle(::CreateFileW(path.c_str(), access,
                               FILE_SHARE_READ |
                                   (sharing == Sharing::Everything ? FILE_SHARE_WRITE | FILE_SHARE_DELETE : 0UL),
                               nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
    }
    ~FileHandle() { close(); }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    void close()
    {
        if (isOpen())
            ::CloseHandle(handle);
        handle = INVALID_HANDLE_VALUE;
    }

    /// False when the file could not be opened; the system's last error says why until the next call to it.
    bool isOpen() const { return handle != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return handle; }

private:
    HANDLE handle;
};
