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
    /// Tells one file from another that has taken its name.
    static ino_t identity(const fs::path& path)
    {
        struct stat state = {};
        return stat(path.c_str(), &state) == 0 ? state.st_ino : 0;
    }

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
    calls.refused["rename"] = EPERM;
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
