#include "files/posix/Strays.h"

#include "files/posix/LinkedFile.h"
#include "files/posix/OpenFile.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <string>
#include <sys/file.h>
#include <system_error>
#include <tuple>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace
{

constexpr std::size_t digitCount = 16;

std::string hexadecimal(std::uint64_t number)
{
    std::array<char, digitCount + 1> digits{};
    std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(number));
    return digits.data();
}

/// What the strays of a target's name begin with. The same for ever (FNV-1a), so that a later version knows its own.
std::string strayPrefix(const fs::path& target)
{
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char c : target.filename().native())
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
    return ".saving-" + hexadecimal(hash) + '-';
}

bool isStray(const std::string& name, const std::string& prefix)
{
    const auto isDigit = [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); };
    return name.size() == prefix.size() + digitCount && name.starts_with(prefix) &&
           std::all_of(name.end() - digitCount, name.end(), isDigit);
}

std::vector<fs::path> straysOf(const fs::path& target)
{
    const std::string prefix = strayPrefix(target);
    std::vector<fs::path> strays;
    std::error_code error;
    for (fs::directory_iterator entry(folderOf(target), error); !error && entry != fs::directory_iterator();
         entry.increment(error))
    {
        if (isStray(entry->path().filename().native(), prefix))
            strays.push_back(entry->path());
    }
    return strays;
}

bool reserve(FileSystemCalls& calls, int descriptor)
{
    return calls.flock(descriptor, LOCK_EX | LOCK_NB) == 0;
}

void removeUnlessInUse(FileSystemCalls& calls, const fs::path& stray)
{
    const OpenFile file(calls, stray, O_WRONLY | O_NOFOLLOW | O_NONBLOCK);
    if (file.isOpen() && reserve(calls, file.get()))
        calls.unlink(stray.c_str());
}

} // namespace

fs::path strayName(const fs::path& target)
{
    // The time serves where the system has no chance numbers; a name that is taken is never written over.
    auto number = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
    std::ignore = ::getentropy(&number, sizeof number);
    return target.parent_path() / (strayPrefix(target) + hexadecimal(number));
}

void markInUse(FileSystemCalls& calls, int descriptor)
{
    reserve(calls, descriptor);
}

void clearStrays(FileSystemCalls& calls, const fs::path& target)
{
    for (const fs::path& stray : straysOf(target))
        removeUnlessInUse(calls, stray);
}
