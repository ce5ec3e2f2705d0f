#pragma once

#include "files/windows/FileHandle.h"

#include <gtest/gtest.h>

#include <filesystem>

/// A file that another program holds open.
class OpenElsewhere
{
public:
    /// @param sharing  what the other program leaves to everybody else, in FILE_SHARE_ bits
    OpenElsewhere(const std::filesystem::path& path, DWORD sharing)
        : handle(::CreateFileW(path.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr))
    {
        EXPECT_NE(handle, INVALID_HANDLE_VALUE);
    }
    ~OpenElsewhere() { ::CloseHandle(handle); }
    OpenElsewhere(const OpenElsewhere&) = delete;
    OpenElsewhere& operator=(const OpenElsewhere&) = delete;

private:
    HANDLE handle;
};
