#include "FaultyCalls.h"
#include "FileSizeLimit.h"
#include "SafeWriteFixture.h"
#include "files/posix/SafeWrite.h"

namespace fs = std::filesystem;

namespace
{

class SafeWriteInPlace : public SafeWriteFixture
{
protected:
    FaultyCalls calls;
};

} // namespace

TEST_F(SafeWriteInPlace, RefusedMoveRewritesTheFileInPlace)
{
    const fs::path path = folder.write("map.csv", "old text");
    const ino_t old = identity(path);
    calls.refused["rename"] = EPERM;
    EXPECT_TRUE(writeFileSafely(path, "new", calls));
    EXPECT_EQ(contents(path), "new");
    EXPECT_TRUE(writeFileSafely(path, "a longer new text", calls));
    EXPECT_EQ(contents(path), "a longer new text");
    EXPECT_EQ(identity(path), old);
}

TEST_F(SafeWriteInPlace, RefusedMoveOfANewFileLeavesNothing)
{
    calls.refused = {{"linkat", EPERM}, {"rename", EPERM}};
    EXPECT_FALSE(writeFileSafely(folder / "map.csv", "new", calls));
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(SafeWriteInPlace, FolderWithoutRoomForAFreshNameHasItsFileRewrittenInPlace)
{
    constexpr std::size_t longestPath = 4095;
    const std::string fileName = "/m";
    std::string deep = folder.path().string();
    while (deep.size() + fileName.size() < longestPath)
        deep += '/' + std::string(std::min<std::size_t>(200, longestPath - fileName.size() - deep.size() - 1), 'd');
    fs::create_directories(deep);
    const fs::path path = deep + fileName;
    ASSERT_EQ(path.string().size(), longestPath);
    std::ofstream(path) << "old";
    const ino_t old = identity(path);
    EXPECT_TRUE(writeFileSafely(path, "new"));
    EXPECT_EQ(contents(path), "new");
    EXPECT_EQ(identity(path), old);
}

TEST_F(SafeWriteInPlace, ReadOnlyFolderHasItsFileRewrittenInPlace)
{
    const fs::path path = folder.write("map.csv", "old");
    fs::permissions(path, fs::perms(0666));
    fs::permissions(folder.path(), fs::perms(0555));
    EXPECT_EXIT(writeWithoutPrivileges(path, "new"), testing::ExitedWithCode(0), "");
    EXPECT_EQ(contents(path), "new");
}

TEST_F(SafeWriteInPlace, DiskWithoutRoomForRewritingInPlaceLeavesTheOldFileUntouched)
{
    const fs::path path = folder.write("map.csv", "old text");
    calls.refused["rename"] = EPERM;
    const FileSizeLimit full(1000);
    EXPECT_FALSE(writeFileSafely(path, std::string(5000, 'x'), calls));
    EXPECT_EQ(contents(path), "old text");
}

TEST_F(SafeWriteInPlace, NoMoreRoomIsAskedForThanTheFileGrowsBy)
{
    const fs::path path = folder.write("map.csv", std::string(400, 'o'));
    calls.refused["rename"] = EPERM;
    const FileSizeLimit full(1000);
    EXPECT_TRUE(writeFileSafely(path, std::string(1000, 'n'), calls));
    EXPECT_EQ(contents(path), std::string(1000, 'n'));
}

TEST_F(SafeWriteInPlace, FileWithMoreNamesThanOneKeepsThemAll)
{
    const fs::path path = folder.write("map.csv", "old text");
    fs::create_hard_link(path, folder / "same");
    EXPECT_TRUE(writeFileSafely(path, "new"));
    EXPECT_EQ(contents(folder / "same"), "new");
    EXPECT_EQ(identity(folder / "same"), identity(path));
}

TEST_F(SafeWriteInPlace, FileThatVanishesMeanwhileIsNotReportedAsWritten)
{
    const fs::path path = folder.write("map.csv", "old text");
    calls.refused["rename"] = EPERM;
    calls.onCall = [&](const std::string& call)
    {
        if (call == "ftruncate")
            fs::remove(path);
    };
    EXPECT_FALSE(writeFileSafely(path, "new", calls));
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(SafeWriteInPlace, FileThatIsReplacedMeanwhileIsNotReportedAsWritten)
{
    const fs::path path = folder.write("map.csv", "old text");
    const fs::path other = folder.write("other.csv", "by another program");
    calls.refused["rename"] = EPERM;
    calls.onCall = [&](const std::string& call)
    {
        if (call == "ftruncate")
            renameat(AT_FDCWD, other.c_str(), AT_FDCWD, path.c_str());
    };
    EXPECT_FALSE(writeFileSafely(path, "new", calls));
    EXPECT_EQ(contents(path), "by another program");
}

TEST_F(SafeWriteInPlace, LimitOfTheFileSizeFailsWithoutEndingTheProgram)
{
    const fs::path path = folder.write("map.csv", "old text");
    calls.refused = {{"rename", EPERM}, {"posixFallocate", EOPNOTSUPP}};
    const auto write = [&]
    {
        const FileSizeLimit full(1000);
        std::signal(SIGXFSZ, SIG_DFL);
        const bool refused = !writeFileSafely(path, std::string(5000, 'x'), calls) &&
                             !writeFileSafely(folder / "new.csv", std::string(5000, 'x'));
        _exit(refused ? 0 : 1);
    };
    EXPECT_EXIT(write(), testing::ExitedWithCode(0), "");
    EXPECT_EQ(contents(path), "old text");
    EXPECT_FALSE(fs::exists(folder / "new.csv"));
}
