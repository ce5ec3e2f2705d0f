#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// A folder of its own in the build tree, on a disk and not in memory, which goes with the object.
class ScratchFolder
{
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    /// A name in the folder.
    std::filesystem::path file(std::string_view name) const { return folder / name; }

private:
    std::filesystem::path folder;
};

/// Reads a file in the plainest way: one buffer of its size, one pass.
std::string readPlainly(const std::filesystem::path& path);

/// Takes a file out of the system's memory, so that it is read from the disk next.
void forgetContents(const std::filesystem::path& path);

/// Writes a file in the plainest way and waits until the disk has it.
void writeAndSync(const std::filesystem::path& path, std::string_view bytes);

/// Writes a file for a benchmark to start from.
void writeInput(const std::filesystem::path& path, std::string_view bytes);
