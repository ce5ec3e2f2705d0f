#include "files/SafeWrite.h"

#include "FileSizeLimit.h"
#include "SafeWriteFixture.h"

#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{

class SafeWrite : public SafeWriteFixture
{
};

} // namespace

TEST_F(SafeWrite, NewFileHasThePermissionsTheUserGivesNewFiles)
{
    const mode_t oldMask = umask(027);
    EXPECT_TRUE(writeFileSafely(folder / "map.csv", "x"));
    umask(oldMask);
    EXPECT_EQ(mode(folder / "map.csv"), 0640U);
}

TEST_F(SafeWrite, ReaderOfTheOldFileNeverSeesAMixture)
{
    const fs::path path = folder.write("map.csv", "old text");
    std::ifstream reader(path);
    EXPECT_TRUE(writeFileSafely(path, "new"));
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}), "old text");
}

TEST_F(SafeWrite, PermissionsOfTheOldFileAreKept)
{
    const fs::path path = folder.write("map.csv", "old");
    for (const mode_t wanted : {0600U, 0640U, 0666U, 0755U})
    {
        ASSERT_EQ(chmod(path.c_str(), wanted), 0);
        EXPECT_TRUE(writeFileSafely(path, "new"));
        EXPECT_EQ(mode(path), wanted);
    }
}

TEST_F(SafeWrite, SymbolicLinkStaysALinkToTheWrittenFile)
{
    fs::create_directory(folder / "elsewhere");
    const fs::path file = folder.write("elsewhere/map.csv", "old");
    fs::create_symlink("elsewhere/map.csv", folder / "link");
    EXPECT_TRUE(writeFileSafely(folder / "link", "new"));
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_FALSE(fs::is_symlink(file));
    EXPECT_EQ(contents(file), "new");
}

TEST_F(SafeWrite, ChainOfLinksIsFollowedToItsEnd)
{
    fs::create_directory(folder / "a");
    fs::create_directory(folder / "b");
    const fs::path file = folder.write("map.csv", "old");
    fs::create_symlink("../map.csv", folder / "b" / "second");
    fs::create_symlink(folder / "b" / "second", folder / "a" / "first");
    EXPECT_TRUE(writeFileSafely(folder / "a" / "first", "new"));
    EXPECT_EQ(contents(file), "new");
    EXPECT_EQ(fs::read_symlink(folder / "b" / "second"), "../map.csv");
    EXPECT_EQ(fs::read_symlink(folder / "a" / "first"), folder / "b" / "second");
}

TEST_F(SafeWrite, DanglingLinkMakesTheFileItLeadsTo)
{
    fs::create_symlink("missing.csv", folder / "second");
    fs::create_symlink("second", folder / "first");
    EXPECT_TRUE(writeFileSafely(folder / "first", "new"));
    EXPECT_TRUE(fs::is_symlink(folder / "first"));
    EXPECT_TRUE(fs::is_symlink(folder / "second"));
    EXPECT_EQ(contents(folder / "missing.csv"), "new");
}

TEST_F(SafeWrite, FileIsMadeAtTheEndOfAsManyLinksAsTheSystemFollows)
{
    constexpr int mostLinks = 40;
    fs::create_symlink("map.csv", folder / "1");
    for (int link = 2; link <= mostLinks + 1; ++link)
        fs::create_symlink(std::to_string(link - 1), folder / std::to_string(link));
    EXPECT_FALSE(writeFileSafely(folder / std::to_string(mostLinks + 1), "new"));
    EXPECT_FALSE(fs::exists(folder / "map.csv"));
    EXPECT_TRUE(writeFileSafely(folder / std::to_string(mostLinks), "new"));
    EXPECT_EQ(contents(folder / "map.csv"), "new");
}

TEST_F(SafeWrite, LinksThatLeadNowhereAreRefused)
{
    fs::create_symlink("no-such-folder/map.csv", folder / "astray");
    EXPECT_FALSE(writeFileSafely(folder / "astray", "new"));
    fs::create_symlink("round", folder / "round");
    EXPECT_FALSE(writeFileSafely(folder / "round", "new"));
    EXPECT_TRUE(fs::is_symlink(folder / "round"));
}

TEST_F(SafeWrite, LongestPossibleFileNameIsWritten)
{
    const fs::path path = folder / std::string(255, 'm');
    EXPECT_TRUE(writeFileSafely(path, "one"));
    EXPECT_TRUE(writeFileSafely(path, "two"));
    EXPECT_EQ(contents(path), "two");
}

TEST_F(SafeWrite, NameIsTheBytesThatTheSystemGave)
{
    const fs::path path = folder / "pl\xe4nt.csv";
    EXPECT_TRUE(writeFileSafely(path, "one"));
    EXPECT_TRUE(writeFileSafely(path, "two"));
    EXPECT_EQ(contents(path), "two");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 1);
}

TEST_F(SafeWrite, PipesAreRefusedAndStay)
{
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(writeFileSafely(folder / "pipe", "new"));
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

TEST_F(SafeWrite, WriteProtectedFileIsRefusedThoughItsFolderIsNot)
{
    const fs::path path = folder.write("map.csv", "old");
    fs::permissions(path, fs::perms(0444));
    EXPECT_EXIT(writeWithoutPrivileges(path, "new"), testing::ExitedWithCode(1), "");
    EXPECT_EQ(contents(path), "old");
}

TEST_F(SafeWrite, FullDiskLeavesTheOldFileUntouched)
{
    const fs::path path = folder.write("map.csv", "old text");
    {
        const FileSizeLimit full(1000);
        EXPECT_FALSE(writeFileSafely(path, std::string(5000, 'x')));
        EXPECT_FALSE(writeFileSafely(folder / "new.csv", std::string(5000, 'x')));
    }
    EXPECT_EQ(contents(path), "old text");
    EXPECT_FALSE(fs::exists(folder / "new.csv"));
}
