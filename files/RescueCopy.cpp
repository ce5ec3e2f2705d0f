#include "files/RescueCopy.h"

#include "files/SafeWrite.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <exception>
#include <string>
#include <system_error>
#include <vector>

namespace fs = std::filesystem;

// The copies in their folder, one for each run that has rescued something:
//
//   plant-20260412-091503.csv      work of one morning
//   plant-20260412-091503-2.csv    of another window, in the same second
//   map-20260413-170000            work that has no file of its own yet
//
// Within a run the name stays, so that each writing takes the place of the one before.

namespace
{

/// Local time, so that the user knows the day again.
std::string timeStamp()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    ::localtime_s(&local, &now);
#else
    ::localtime_r(&now, &local);
#endif
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "-%Y%m%d-%H%M%S", &local);
    return {text.data(), length};
}

/// Units of a file name, bytes or on Windows characters, that stem and extension of the work may take. File systems
/// end at 255; the time, a number and what a safe write adds need their part.
constexpr std::size_t longestStem = 160;
constexpr std::size_t longestExtension = 32;

/// The beginning of a name, not cut inside a character.
fs::path shortened(const fs::path& name, std::size_t most)
{
    fs::path::string_type text = name.native();
    if (text.size() <= most)
        return name;
    const auto isInsideCharacter = [](auto unit) { return sizeof unit == 1 && (unit & 0xC0) == 0x80; };
    while (most > 0 && isInsideCharacter(text[most]))
        --most;
    text.resize(most);
    return text;
}

/// A name in the folder that no other run has taken.
fs::path freeName(const fs::path& folder, const fs::path& workName)
{
    const std::string stamp = timeStamp();
    const fs::path stem = workName.has_stem() ? shortened(workName.stem(), longestStem) : fs::path("map");
    const fs::path extension = shortened(workName.extension(), longestExtension);
    for (int number = 1;; ++number)
    {
        fs::path name = stem;
        name += stamp;
        if (number > 1)
            name += "-" + std::to_string(number);
        name += extension;
        if (!fs::exists(folder / name))
            return folder / name;
    }
}

bool makeFolder(const fs::path& folder)
{
    std::error_code error;
    fs::create_directories(folder, error);
    if (error)
        return false;
    // Maps tell how a plant is run: the folder keeps other users out before there is anything in it.
    fs::permissions(folder, fs::perms::owner_all, error);
    return !error;
}

/// Removes the oldest copies until no more than `keptCopies` are left.
void removeOldest(const fs::path& folder)
try
{
    std::vector<std::pair<fs::file_time_type, fs::path>> copies;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
    {
        if (entry.is_regular_file())
            copies.emplace_back(entry.last_write_time(), entry.path());
    }
    if (copies.size() <= RescueCopy::keptCopies)
        return;
    // By the time of writing, not by name: names begin with that of the work.
    std::sort(copies.begin(), copies.end());
    copies.resize(copies.size() - RescueCopy::keptCopies);
    for (const auto& [time, path] : copies)
        fs::remove(path);
}
catch (const fs::filesystem_error&)
{
    // Another run tidies up at the same time. What it leaves goes with the next copy.
}

} // namespace

RescueCopy::RescueCopy(fs::path copiesFolder) : folder(std::move(copiesFolder)) {}

bool RescueCopy::write(const fs::path& workName, std::string_view bytes)
try
{
    if (folder.empty() || !makeFolder(folder))
        return false;
    const fs::path target = copy.empty() ? freeName(folder, workName.filename()) : copy;
    if (!writeFileSafely(target, bytes))
        return false;
    // Only now: were it noted before, a failure would leave a name under which there is nothing.
    copy = target;
    std::error_code ignored; // the folder keeps others out in any case
    fs::permissions(copy, fs::perms::owner_read | fs::perms::owner_write, ignored);
    // After the writing, so that a full disk costs no older copy. This one is the youngest and stays.
    removeOldest(folder);
    return true;
}
catch (const std::exception&) // a folder that changes meanwhile, or no memory: there is nobody to tell
{
    return false;
}

void RescueCopy::remove()
{
    std::error_code ignored;
    fs::remove(copy, ignored);
    copy.clear();
}
