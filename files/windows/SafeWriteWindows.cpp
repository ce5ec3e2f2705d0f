#include "files/SafeWrite.h"
#include "files/windows/Exchange.h"
#include "files/windows/FileBytes.h"
#include "files/windows/FileHandle.h"
#include "files/windows/LinkedFile.h"

#include <new>

namespace fs = std::filesystem;

// How a file is written:
//
//   nothing of that name       a fresh file takes the name
//   one name                   a fresh file takes its place; rewritten in place where that is refused
//   several names              rewritten in place: a fresh file would leave the old contents to the other names
//   a folder or a device, or write-protected      not at all

namespace
{

/// What an open file is like; all zero when the system does not tell.
BY_HANDLE_FILE_INFORMATION informationOf(const FileHandle& file)
{
    BY_HANDLE_FILE_INFORMATION information{};
    ::GetFileInformationByHandle(file.get(), &information);
    return information;
}

/// A folder and a write-protected file are refused, though a user with enough rights may open them.
bool mayBeWritten(const FileHandle& file, const BY_HANDLE_FILE_INFORMATION& information)
{
    return ::GetFileType(file.get()) == FILE_TYPE_DISK &&
           (information.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) == 0;
}

} // namespace

bool writeFileSafely(const fs::path& path, std::string_view bytes)
try
{
    FileHandle old(path, GENERIC_WRITE, OPEN_EXISTING);
    // Only where the name alone is missing: a path that is missing, or a file that is refused, is a failure.
    if (!old.isOpen())
        return ::GetLastError() == ERROR_FILE_NOT_FOUND && exchangeFile(path, false, bytes) == Exchange::Done;
    const BY_HANDLE_FILE_INFORMATION information = informationOf(old);
    if (!mayBeWritten(old, information))
        return false;
    // Opening has followed the links already; what is written is the file at their end, and the links stay.
    const fs::path target = linkedFile(old).value_or(path);
    old.close(); // an open file is not exchanged
    const bool hasOtherNames = information.nNumberOfLinks > 1;
    const Exchange exchange = hasOtherNames ? Exchange::Refused : exchangeFile(target, true, bytes);
    if (exchange == Exchange::Refused)
        return rewriteInPlace(target, bytes);
    return exchange == Exchange::Done;
}
catch (const std::bad_alloc&)
{
    return false;
}
