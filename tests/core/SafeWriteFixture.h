#pragma once

#include "TempFolder.h"
#include "files/SafeWrite.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

/// Works in a folder of its own and checks at the end that nothing was left behind there.
class SafeWriteFixture : public testing::Test
{
protected:
    SafeWriteFixture() { std::filesystem::permissions(folder.path(), std::filesystem::perms::all); }

    ~SafeWriteFixture() override
    {
        std::filesystem::permissions(folder.path(), std::filesystem::perms::all);
        EXPECT_EQ(strays(), 0);
    }

    /// How many files of unfinished writing lie in the folder or below it.
    int strays() const
    {
        int count = 0;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path()))
            count += entry.path().filename().string().starts_with(".saving") ? 1 : 0;
        return count;
    }

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

    /// Writes as somebody whom permissions bind, and ends the process with 0 when that succeeded.
    [[noreturn]] static void writeWithoutPrivileges(const std::filesystem::path& path, std::string_view bytes)
    {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0 && setuid(nobody) != 0)
            _exit(2);
        _exit(writeFileSafely(path, bytes) ? 0 : 1);
    }

    const TempFolder folder;
};
