#include "files/OldBytes.h"
#include "files/windows/Exchange.h"
#include "files/windows/LinkedFile.h"

#include <new>

namespace fs = std::filesystem;

bool keepOldBytes(const fs::path& path)
try
{
    const FileHandle file(path, GENERIC_READ, OPEN_EXISTING);
    if (!file.isOpen() || ::GetFileType(file.get()) != FILE_TYPE_DISK)
        return false;
    const fs::path target = linkedFile(file).value_or(path);
    return copyFile(target, fs::path(target) += L'~');
}
catch (const std::bad_alloc&)
{
    return false;
}
