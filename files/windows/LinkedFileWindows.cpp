#include "files/windows/LinkedFile.h"

#include <string>

std::optional<std::filesystem::path> linkedFile(const FileHandle& file)
{
    // The longest path that the system has, and its zero character. The answer begins with "\\?\", by which later calls
    // take paths of that length too.
    constexpr std::size_t longestPath = 32768;
    std::wstring name(longestPath, L'\0');
    const DWORD length =
        ::GetFinalPathNameByHandleW(file.get(), name.data(), static_cast<DWORD>(name.size()), FILE_NAME_NORMALIZED);
    if (length == 0 || length >= name.size())
        return std::nullopt;
    name.resize(length);
    return std::filesystem::path(std::move(name));
}
