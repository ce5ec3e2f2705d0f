#include "FaultyCalls.h"
#include "SafeWriteFixture.h"
#include "files/posix/SafeWrite.h"

#include <iterator>

namespace fs = std::filesystem;

namespace
{

/// What survives a power cut is what was flushed, in the order of the calls.
class SafeWriteFlush : public SafeWriteFixture
{
protected:
    /// Where the call was made first among all calls; behind them when it was not.
    std::ptrdiff_t first(const char* call) const
    {
        return std::find(calls.made.begin(), calls.made.end(), call) - calls.made.begin();
    }

    /// Where the call was made last; -1 when it was not.
    std::ptrdiff_t last(const char* call) const
    {
        return calls.made.rend() - std::find(calls.made.rbegin(), calls.made.rend(), call) - 1;
    }

    void expectBytesBeforeNameBeforeFolder() const
    {
        EXPECT_GE(last("pwrite"), 0);
        EXPECT_LT(last("pwrite"), first("fsync file"));
        EXPECT_LT(last("fsync file"), std::min(first("linkat"), first("rename")));
        EXPECT_LT(std::max(last("linkat"), last("rename")), first("fsync folder"));
        EXPECT_EQ(calls.flushed, (std::vector<ino_t>{identity(file), identity(file.parent_path())}));
    }

    fs::path file = folder / "map.csv";
    FaultyCalls calls;
};

} // namespace

TEST_F(SafeWriteFlush, NewFileIsFlushedThenNamedThenItsFolderIsFlushed)
{
    EXPECT_TRUE(writeFileSafely(file, "new", calls));
    expectBytesBeforeNameBeforeFolder();
}

TEST_F(SafeWriteFlush, ReplacingFileIsFlushedThenMovedThenItsFolderIsFlushed)
{
    folder.write("map.csv", "old");
    EXPECT_TRUE(writeFileSafely(file, "new", calls));
    expectBytesBeforeNameBeforeFolder();
}

TEST_F(SafeWriteFlush, FileThatIsNamedFromTheStartIsFlushedThenMovedThenItsFolderIsFlushed)
{
    folder.write("map.csv", "old");
    calls.refused["open unnamed"] = EOPNOTSUPP;
    EXPECT_TRUE(writeFileSafely(file, "new", calls));
    expectBytesBeforeNameBeforeFolder();
}

TEST_F(SafeWriteFlush, FolderOfTheFileThatALinkLeadsToIsFlushed)
{
    fs::create_directory(folder / "elsewhere");
    fs::create_symlink("elsewhere/map.csv", file);
    EXPECT_TRUE(writeFileSafely(file, "new", calls));
    file = folder / "elsewhere" / "map.csv";
    expectBytesBeforeNameBeforeFolder();
}

TEST_F(SafeWriteFlush, FileRewrittenInPlaceIsFlushedAfterTheLastChange)
{
    folder.write("map.csv", "a longer old text");
    fs::create_hard_link(file, folder / "same");
    EXPECT_TRUE(writeFileSafely(file, "new", calls));
    EXPECT_GE(first("ftruncate"), 0);
    EXPECT_LT(std::max(last("pwrite"), last("ftruncate")), first("fsync file"));
    EXPECT_EQ(calls.flushed, std::vector<ino_t>{identity(file)});
}

TEST_F(SafeWriteFlush, OldContentsThatAreBackInPlaceAreFlushed)
{
    folder.write("map.csv", "old");
    fs::create_hard_link(file, folder / "same");
    calls.onCall = [this](const std::string&) { calls.failingCall = static_cast<std::size_t>(first("ftruncate")) + 1; };
    EXPECT_FALSE(writeFileSafely(file, "new", calls));
    EXPECT_EQ(contents(file), "old");
    EXPECT_EQ(calls.flushed, std::vector<ino_t>{identity(file)});
}

TEST_F(SafeWriteFlush, FileThatCannotBeFlushedDoesNotTakeTheOldOnesPlace)
{
    folder.write("map.csv", "old");
    calls.refused["fsync file"] = EIO;
    EXPECT_FALSE(writeFileSafely(file, "new", calls));
    EXPECT_EQ(contents(file), "old");
}

TEST_F(SafeWriteFlush, FolderThatCannotBeFlushedHoldsTheNewFileAllTheSame)
{
    folder.write("map.csv", "old");
    calls.refused["fsync folder"] = EINVAL;
    EXPECT_TRUE(writeFileSafely(file, "new", calls));
    EXPECT_EQ(contents(file), "new");
}
