#pragma once

#include <filesystem>
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

    /// Writes a file for a benchmark to start from.
    std::filesystem::path input(std::string_view name, std::string_view bytes) const;

private:
    std::filesystem::path folder;
};

/// Takes a file out of the system's memory, so that it is read from the disk next.
void forgetContents(const std::filesystem::path& path);

/// Writes a file in the plainest way and waits until the disk has it.
void writeAndSync(const std::filesystem::path& path, std::string_view bytes);
