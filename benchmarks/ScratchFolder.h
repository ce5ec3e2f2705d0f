#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

/// A folder of its own in the build tree, on a disk and not in memory. It goes with the object.
class ScratchFolder
{
public:
    ScratchFolder()
    {
        std::string name = TOLVANE_BENCH_SCRATCH "/tolvane-XXXXXX";
        if (::mkdtemp(name.data()) == nullptr)
            throw std::filesystem::filesystem_error("cannot make a folder", name, std::error_code());
        folder = name;
    }
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    /// A name in the folder.
    std::filesystem::path file(std::string_view name) const { return folder / name; }

    /// Writes a file for a benchmark to start from.
    std::filesystem::path input(std::string_view name, std::string_view bytes) const
    {
        std::filesystem::path path = file(name);
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }

private:
    std::filesystem::path folder;
};
