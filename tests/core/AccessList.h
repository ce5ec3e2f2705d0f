#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// Access lists as the system keeps them in the attributes of files and folders: a version, then tag, permissions and
/// id of every entry, all little-endian.

constexpr const char* accessListName = "system.posix_acl_access";
constexpr const char* defaultListName = "system.posix_acl_default";

/// The list of a file of mode 640 that one user besides may read and write.
inline std::string accessListFor(std::uint32_t user)
{
    struct Entry
    {
        std::uint32_t tag, permissions, id;
    };
    constexpr std::uint32_t nobodyInParticular = 0xffffffff;
    const std::array<Entry, 5> entries{{{1, 6, nobodyInParticular},    // the owner
                                        {2, 6, user},                  // a named user
                                        {4, 4, nobodyInParticular},    // the group
                                        {16, 6, nobodyInParticular},   // the most that named users and groups get
                                        {32, 0, nobodyInParticular}}}; // all others
    std::string list;
    const auto append = [&list](std::uint32_t number, int bytes)
    {
        for (int i = 0; i < bytes; ++i)
            list += static_cast<char>(number >> (8 * i) & 0xffU);
    };
    append(2, 4);
    for (const Entry& entry : entries)
    {
        append(entry.tag, 2);
        append(entry.permissions, 2);
        append(entry.id, 4);
    }
    return list;
}
