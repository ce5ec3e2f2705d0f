#include "files/posix/Attributes.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Extended attributes are named values that a file carries beside its contents: access lists, labels of security
// modules, notes of the desktop. A fresh file has none of them but those that the system or the folder gives it, so
// without these functions a save would strip the file of them without a word.

namespace
{

constexpr const char* accessList = "system.posix_acl_access";

/// The system's own limit for all names together and for one value.
constexpr std::size_t largest = 65536;

std::vector<std::string> splitNames(std::string_view list)
{
    // All names come in one piece, each with a zero byte after it.
    std::vector<std::string> names;
    while (!list.empty())
    {
        names.emplace_back(list.substr(0, list.find('\0')));
        list.remove_prefix(std::min(list.size(), names.back().size() + 1));
    }
    return names;
}

/// @return nothing when the system does not tell; no names where the file system has no attributes
std::optional<std::vector<std::string>> attributeNames(FileSystemCalls& calls, int descriptor)
{
    std::array<char, largest> names;
    const ssize_t length = calls.flistxattr(descriptor, names.data(), names.size());
    if (length >= 0)
        return splitNames({names.data(), static_cast<std::size_t>(length)});
    return errno == ENOTSUP ? std::optional(std::vector<std::string>()) : std::nullopt;
}

/// @return nothing when there is no such attribute or it may not be read
std::optional<std::string> attribute(FileSystemCalls& calls, int descriptor, const std::string& name)
{
    std::array<char, largest> value;
    const ssize_t length = calls.fgetxattr(descriptor, name.c_str(), value.data(), value.size());
    return length < 0 ? std::nullopt : std::optional(std::string(value.data(), static_cast<std::size_t>(length)));
}

/// True for checksums and rights that were given to the old bytes: on the new ones they would be wrong.
bool belongsToContents(const std::string& name)
{
    return name == "security.ima" || name == "security.evm" || name == "security.capability";
}

/// A label that the fresh file has already is not set: that may be forbidden.
bool carryAttribute(FileSystemCalls& calls, int from, int to, const std::string& name)
{
    const std::optional<std::string> value = attribute(calls, from, name);
    return value && (attribute(calls, to, name) == value ||
                     calls.fsetxattr(to, name.c_str(), value->data(), value->size(), 0) == 0);
}

/// A folder may have a list that every new file in it is given, and that lets in people whom the old file kept out.
bool dropInheritedAccessList(FileSystemCalls& calls, int descriptor)
{
    return calls.fremovexattr(descriptor, accessList) == 0 || errno == ENODATA || errno == ENOTSUP;
}

} // namespace

bool takeOverAttributes(FileSystemCalls& calls, int from, int to)
{
    const std::optional<std::vector<std::string>> names = attributeNames(calls, from);
    if (!names)
        return false;
    const bool hasAccessList = std::find(names->begin(), names->end(), accessList) != names->end();
    if (!hasAccessList && !dropInheritedAccessList(calls, to))
        return false;
    return std::all_of(names->begin(), names->end(),
                       [&](const std::string& name)
                       { return belongsToContents(name) || carryAttribute(calls, from, to, name); });
}
