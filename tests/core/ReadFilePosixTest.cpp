// What only this kind of system has under a name: links, pipes, and files in which it describes itself.

#include "files/ReadFile.h"
#include "tests/core/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string_view>
#include <sys/stat.h>

TEST(ReadFile, SymbolicLinksAreFollowed)
{
    const TempFolder folder;
    folder.write("file", "content");
    std::filesystem::create_symlink("file", folder / "link");
    std::filesystem::create_symlink("missing", folder / "dangling");
    std::filesystem::create_symlink("loop", folder / "loop");
    EXPECT_EQ(readFile(folder / "link"), "content");
    EXPECT_EQ(readFile(folder / "dangling"), std::nullopt);
    EXPECT_EQ(readFile(folder / "loop"), std::nullopt);
}

TEST(ReadFile, PipesAndDevicesAreNotWaitedFor)
{
    const TempFolder folder;
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(readFile(folder / "pipe"), std::nullopt);
    EXPECT_EQ(readFile("/dev/zero"), std::nullopt);
}

/// The system reports a size of 0 for the files in which it describes itself, as for a file that grows meanwhile.
TEST(ReadFile, FileThatHoldsMoreThanItsSizeSaysIsReadToItsEnd)
{
    const auto bytes = readFile("/proc/self/stat");
    ASSERT_TRUE(bytes.has_value());
    EXPECT_TRUE(bytes->ends_with('\n'));
}

/// That file is handed out in pieces of a few lines, each a short read: the first one is not the end.
TEST(ReadFile, ShortReadIsNotTheEnd)
{
    const auto bytes = readFile("/proc/self/smaps");
    ASSERT_TRUE(bytes.has_value());
    EXPECT_GT(bytes->size(), 8192U);
    // Its last mapping is that of the system calls, at the top of the addresses; each mapping ends with its flags.
    const std::size_t lastLine = bytes->rfind('\n', bytes->size() - 2) + 1;
    EXPECT_TRUE(std::string_view(*bytes).substr(lastLine).starts_with("VmFlags:"));
    EXPECT_NE(bytes->find("[stack]"), std::string::npos);
}

/// Nothing of this process lies at address 0, where its memory would begin as a file.
TEST(ReadFile, FileThatOpensAndCannotBeReadGivesNothing)
{
    EXPECT_EQ(readFile("/proc/self/mem"), std::nullopt);
}
