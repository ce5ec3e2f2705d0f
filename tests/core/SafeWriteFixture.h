#pragma once

#include "CleanFolder.h"
#include "files/SafeWrite.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

/// Works in a folder of its own and checks at the end that nothing was left behind there.
class SafeWriteFixture : public testing::Test
{
protected:
    SafeWriteFixture() { std::filesystem::permissions(folder.path(), std::filesystem::perms::all); }

    ~SafeWriteFixture() override { std::filesystem::permissions(folder.path(), std::filesystem::perms::all); }

    /// How many files of unfinished writing lie in the folder or below it.
    int strays() const { return folder.strays(); }

    static std::string contents(const std::filesystem::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    static mode_t mode(const std::filesystem::path& path)
    {
        struct stat state = {};
        return stat(path.c_str(), &state) == 0 ? state.st_mode & 07777U : 0;
    }

    /// Tells one file from another that has taken its name.
    static ino_t identity(const std::filesystem::path& path)
    {
        struct stat state = {};
        return stat(path.c_str(), &state) == 0 ? state.st_ino : 0;
    }

    /// All extended attributes of a file, the access list among them; none where the file system has none.
    static std::map<std::string, std::string> attributes(const std::filesystem::path& path)
    {
        std::string names(65536, '\0');
        names.resize(
            static_cast<std::size_t>(std::max<ssize_t>(0, listxattr(path.c_str(), names.data(), names.size()))));
        std::map<std::string, std::string> found;
        for (std::size_t start = 0; start < names.size(); start = names.find('\0', start) + 1)
        {
            const char* const name = names.c_str() + start;
            std::string value(65536, '\0');
            const ssize_t length = getxattr(path.c_str(), name, value.data(), value.size());
            found[name] = value.substr(0, static_cast<std::size_t>(std::max<ssize_t>(0, length)));
        }
        return found;
    }

    /// Gives a file or folder an attribute.
    /// @return false where the file system takes none
    static bool setAttribute(const std::filesystem::path& path, const char* name, const std::string& value)
    {
        return setxattr(path.c_str(), name, value.data(), value.size(), 0) == 0;
    }

    /// Writes as somebody whom permissions bind, and ends the process with 0 when that succeeded.
    [[noreturn]] static void writeWithoutPrivileges(const std::filesystem::path& path, std::string_view bytes)
    {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0 && setuid(nobody) != 0)
            _exit(2);
        _exit(writeFileSafely(path, bytes) ? 0 : 1);
    }

    const CleanFolder folder;
};
