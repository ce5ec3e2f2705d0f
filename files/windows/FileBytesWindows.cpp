#include "files/windows/FileBytes.h"

#include <algorithm>
#include <array>

// The old bytes are kept in memory while a file is rewritten, and growth is asked for before the first of them is
// written over. A full disk therefore refuses while the file is whole; only one that fails has to be put right
// afterwards.

namespace
{

bool moveTo(HANDLE file, std::size_t position)
{
    LARGE_INTEGER distance{};
    distance.QuadPart = static_cast<LONGLONG>(position);
    return ::SetFilePointerEx(file, distance, nullptr, FILE_BEGIN) != 0;
}

bool writeAll(HANDLE file, std::string_view bytes)
{
    // The system counts with 32 bits.
    constexpr std::size_t longestPiece = 1U << 30U;
    while (!bytes.empty())
    {
        DWORD written = 0;
        const auto piece = static_cast<DWORD>(std::min(bytes.size(), longestPiece));
        // No bytes and no error would go on for ever.
        if (::WriteFile(file, bytes.data(), piece, &written, nullptr) == 0 || written == 0)
            return false;
        bytes.remove_prefix(written);
    }
    return true;
}

/// Moves the end of the file; growing reserves the room.
bool resize(HANDLE file, std::size_t size)
{
    FILE_END_OF_FILE_INFO end{};
    end.EndOfFile.QuadPart = static_cast<LONGLONG>(size);
    return ::SetFileInformationByHandle(file, FileEndOfFileInfo, &end, sizeof end) != 0;
}

} // namespace

std::optional<std::string> readAll(HANDLE file)
{
    std::string bytes;
    std::array<char, 65536> block;
    for (;;)
    {
        DWORD length = 0;
        if (::ReadFile(file, block.data(), static_cast<DWORD>(block.size()), &length, nullptr) == 0)
            return std::nullopt;
        if (length == 0)
            return bytes;
        bytes.append(block.data(), length);
    }
}

bool overwrite(HANDLE file, std::string_view bytes)
{
    // From the start, wherever reading has stopped. The end is set after the writing: a file that shrinks keeps its old
    // bytes until the new ones are there.
    return moveTo(file, 0) && writeAll(file, bytes) && resize(file, bytes.size()) && ::FlushFileBuffers(file) != 0;
}

bool rewriteInPlace(const std::filesystem::path& path, std::string_view bytes)
{
    const FileHandle file(path, GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING);
    if (!file.isOpen())
        return false;
    const std::optional<std::string> oldBytes = readAll(file.get());
    if (!oldBytes)
        return false;
    const bool hasRoom = bytes.size() <= oldBytes->size() || resize(file.get(), bytes.size());
    if (hasRoom && overwrite(file.get(), bytes))
        return true;
    // Whether this succeeds is not asked: there is nothing else left to try, and the save has failed either way.
    overwrite(file.get(), *oldBytes);
    return false;
}
