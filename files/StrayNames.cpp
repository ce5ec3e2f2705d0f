#include "files/StrayNames.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <string>
#include <system_error>
#include <type_traits>

namespace fs = std::filesystem;

// The name of a file in the making, beside "plant.csv":
//
//   .saving-3f9a77c01b2e4d58-00000000075bcd15
//           hash of "plant.csv"  number of its own
//
// The hash stands for the target's name because that may take up all the length a name may have. With it a save finds
// the strays of its own target and leaves those of others, which may be in the making just now.

namespace
{

constexpr std::ptrdiff_t digitCount = 16;

std::string hexadecimal(std::uint64_t number)
{
    std::array<char, digitCount + 1> digits{};
    std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(number));
    return digits.data();
}

/// What the strays of a target's name begin with. The same for ever (FNV-1a), so that a later version knows its own.
std::string strayPrefix(const fs::path& target)
{
    const fs::path name = target.filename();
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const fs::path::value_type c : name.native())
        hash = (hash ^ static_cast<std::make_unsigned_t<fs::path::value_type>>(c)) * 0x100000001b3U;
    return ".saving-" + hexadecimal(hash) + '-';
}

bool isStray(const fs::path::string_type& name, const std::string& prefix)
{
    // In full, down to the last digit: what is found so is deleted, and the folder is the user's.
    const auto isDigit = [](fs::path::value_type c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); };
    return name.size() == prefix.size() + static_cast<std::size_t>(digitCount) &&
           std::equal(prefix.begin(), prefix.end(), name.begin()) &&
           std::all_of(name.end() - digitCount, name.end(), isDigit);
}

} // namespace

fs::path strayName(const fs::path& target, std::uint64_t number)
{
    return target.parent_path() / (strayPrefix(target) + hexadecimal(number));
}

std::vector<fs::path> straysOf(const fs::path& target)
{
    const std::string prefix = strayPrefix(target);
    std::vector<fs::path> strays;
    // A folder that may be written but not listed keeps its strays. That must not stop a save.
    std::error_code error;
    for (fs::directory_iterator entry(folderOf(target), error); !error && entry != fs::directory_iterator();
         entry.increment(error))
    {
        if (isStray(entry->path().filename().native(), prefix))
            strays.push_back(entry->path());
    }
    return strays;
}

fs::path folderOf(const fs::path& file)
{
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}
