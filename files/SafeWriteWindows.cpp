#include "files/SafeWrite.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <new>
#include <optional>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace fs = std::filesystem;

namespace
{

/// Closes an open file at the end of its scope, or before.
class FileHandle
{
public:
    FileHandle(const fs::path& path, DWORD creation)
        : handle(::CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
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
    bool isOpen() const { return handle != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return handle; }

private:
    HANDLE handle;
};

/// How putting a fresh file in the old one's place ended.
enum class Exchange
{
    Done,
    Refused, ///< the folder does not allow it
    Failed   ///< the bytes did not get to the disk
};

/// The file that an open handle leads to, links followed.
std::optional<fs::path> linkedFile(const FileHandle& file)
{
    std::array<wchar_t, 32768> name{};
    const DWORD length =
        ::GetFinalPathNameByHandleW(file.get(), name.data(), static_cast<DWORD>(name.size()), FILE_NAME_NORMALIZED);
    if (length == 0 || length >= name.size())
        return std::nullopt;
    return fs::path(name.data(), name.data() + length);
}

/// A name in the folder of `target` that no other running program makes.
fs::path freshName(const fs::path& target)
{
    LARGE_INTEGER ticks{};
    ::QueryPerformanceCounter(&ticks);
    std::array<wchar_t, 48> name{};
    std::swprintf(name.data(), name.size(), L".saving-%08lx%016llx", ::GetCurrentProcessId(),
                  static_cast<unsigned long long>(ticks.QuadPart));
    return target.parent_path() / name.data();
}

bool writeAll(HANDLE file, std::string_view bytes)
{
    constexpr std::size_t longestPiece = 1U << 30U;
    while (!bytes.empty())
    {
        DWORD written = 0;
        const auto piece = static_cast<DWORD>(std::min(bytes.size(), longestPiece));
        if (::WriteFile(file, bytes.data(), piece, &written, nullptr) == 0)
            return false;
        bytes.remove_prefix(written);
    }
    return true;
}

/// Moves `fresh` over `target`, with the attributes and access rights of a file that is there already.
bool takePlaceOf(const fs::path& target, const fs::path& fresh, bool targetExists)
{
    if (!targetExists)
        return ::MoveFileExW(fresh.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH) != 0;
    if (::ReplaceFileW(target.c_str(), fresh.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) != 0)
        return true;
    // A replacement that stops half-way can have taken the old name away already.
    return ::MoveFileExW(fresh.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

Exchange exchangeFile(const fs::path& target, bool targetExists, std::string_view bytes)
{
    const fs::path fresh = freshName(target);
    FileHandle file(fresh, CREATE_NEW);
    if (!file.isOpen())
        return Exchange::Refused;
    const bool flushed = writeAll(file.get(), bytes) && ::FlushFileBuffers(file.get()) != 0;
    file.close();
    if (flushed && takePlaceOf(target, fresh, targetExists))
        return Exchange::Done;
    ::DeleteFileW(fresh.c_str());
    return flushed ? Exchange::Refused : Exchange::Failed;
}

/// Moves the end of the file; growing reserves the room.
bool resize(HANDLE file, std::size_t size)
{
    FILE_END_OF_FILE_INFO end{};
    end.EndOfFile.QuadPart = static_cast<LONGLONG>(size);
    return ::SetFileInformationByHandle(file, FileEndOfFileInfo, &end, sizeof end) != 0;
}

bool rewriteInPlace(const fs::path& target, std::string_view bytes)
{
    const FileHandle file(target, OPEN_EXISTING);
    LARGE_INTEGER oldSize{};
    if (!file.isOpen() || ::GetFileSizeEx(file.get(), &oldSize) == 0)
        return false;
    const bool grows = static_cast<LONGLONG>(bytes.size()) > oldSize.QuadPart;
    if (grows && !resize(file.get(), bytes.size()))
        return false;
    return writeAll(file.get(), bytes) && resize(file.get(), bytes.size()) && ::FlushFileBuffers(file.get()) != 0;
}

} // namespace

bool writeFileSafely(const fs::path& path, std::string_view bytes)
try
{
    FileHandle old(path, OPEN_EXISTING);
    if (!old.isOpen())
        return ::GetLastError() == ERROR_FILE_NOT_FOUND && exchangeFile(path, false, bytes) == Exchange::Done;
    if (::GetFileType(old.get()) != FILE_TYPE_DISK)
        return false;
    const fs::path target = linkedFile(old).value_or(path);
    old.close(); // an open file is not exchanged
    const Exchange exchange = exchangeFile(target, true, bytes);
    if (exchange == Exchange::Refused)
        return rewriteInPlace(target, bytes);
    return exchange == Exchange::Done;
}
catch (const std::bad_alloc&)
{
    return false;
}
