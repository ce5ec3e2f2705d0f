#pragma once

#include <atomic>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

/// A folder for the files of one test, removed with everything in it when the test is over.
class TempFolder
{
public:
    TempFolder() : folder(std::filesystem::temp_directory_path() / uniqueName())
    {
        std::filesystem::create_directories(folder);
    }

    ~TempFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    /// The folder itself.
    const std::filesystem::path& path() const { return folder; }

    /// Where a file of that name lies or would lie.
    std::filesystem::path operator/(const std::filesystem::path& name) const { return folder / name; }

    /// Makes a file of exactly these bytes.
    /// @return where it lies
    std::filesystem::path write(const std::filesystem::path& name, std::string_view bytes) const
    {
        std::filesystem::path file = folder / name;
        std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return file;
    }

private:
    static std::string uniqueName()
    {
        static const unsigned process = std::random_device{}();
        static std::atomic<int> next = 0;
        return "tolvane-test-" + std::to_string(process) + "-" + std::to_string(next++);
    }

    std::filesystem::path folder;
};
