#pragma once

#include "tests/core/TempFolder.h"

#include <gtest/gtest.h>

/// A folder for the files of one test in which nothing but these may be left: the test fails where a file of unfinished
/// writing lies in it at the end.
class CleanFolder : public TempFolder
{
public:
    ~CleanFolder() { EXPECT_EQ(strays(), 0); }

    CleanFolder() : TempFolder() {}
    CleanFolder(const CleanFolder&) = delete;
    CleanFolder& operator=(const CleanFolder&) = delete;

    /// How many files of unfinished writing lie in the folder or below it: fresh ones, and old ones put aside.
    int strays() const
    {
        int count = 0;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(path()))
        {
            const std::u8string name = entry.path().filename().u8string();
            count += name.starts_with(u8".saving") || name.find(u8".old-") != std::u8string::npos ? 1 : 0;
        }
        return count;
    }
};
