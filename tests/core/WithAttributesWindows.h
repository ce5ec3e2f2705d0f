#pragma once

#include "files/windows/FileHandle.h"

#include <gtest/gtest.h>

#include <filesystem>

/// Gives a file attributes and takes them away in the end: a folder with a write-protected file could not be removed.
class WithAttributes
{
public:
    /// @param attributes  FILE_ATTRIBUTE_ bits
    WithAttributes(std::filesystem::path path, DWORD attributes) : file(std::move(path))
    {
        EXPECT_TRUE(::SetFileAttributesW(file.c_str(), attributes));
    }
    ~WithAttributes() { ::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL); }
    WithAttributes(const WithAttributes&) = delete;
    WithAttributes& operator=(const WithAttributes&) = delete;

private:
    std::filesystem::path file;
};
