#include "files/ReadFile.h"

#include "memory/LargePages.h"

#include <array>
#include <cstdint>
#include <exception>
#include <fstream>
#include <system_error>

void appendRest(std::streambuf& file, std::string& bytes)
{
    // A block that stays in the processor's cache is cheaper than a text of the file's size first filled with zeros.
    std::array<char, 65536> block;
    for (;;)
    {
        const std::streamsize length = file.sgetn(block.data(), static_cast<std::streamsize>(block.size()));
        if (length <= 0)
            return;
        bytes.append(block.data(), static_cast<std::size_t>(length));
    }
}

std::optional<std::string> readFile(const std::filesystem::path& path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return std::nullopt;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    try
    {
        std::filebuf file;
        if (file.open(path, std::ios::in | std::ios::binary) == nullptr)
            return std::nullopt;
        std::string bytes;
        if (!error)
            bytes.reserve(size);
        preferLargePages(bytes.data(), bytes.capacity());
        appendRest(file, bytes);
        return bytes;
    }
    catch (const std::exception&)
    {
        return std::nullopt;
    }
}
