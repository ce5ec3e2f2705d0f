#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>

/// A file that exists in memory only: what a target reads without waiting for a disk.
class MemoryFile
{
public:
    explicit MemoryFile(std::span<const std::uint8_t> bytes);
    ~MemoryFile();
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    /// The name by which this process opens it.
    std::filesystem::path path() const;

private:
    int descriptor;
};
