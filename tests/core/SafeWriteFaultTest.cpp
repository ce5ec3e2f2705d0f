#include "AccessList.h"
#include "FaultyCalls.h"
#include "FileSizeLimit.h"
#include "MapBuilder.h"
#include "SafeWriteFixture.h"
#include "files/posix/SafeWrite.h"
#include "files/posix/Strays.h"
#include "map/DefinitionFile.h"
#include "map/MapExport.h"

#include <new>

namespace fs = std::filesystem;

namespace
{

/// Text that takes several writes of `pieceLength` bytes, so that a disk can fail in the middle of it.
const std::string oldText = "the old text\n";
const std::string newText = "the new text, a longer one\n";
constexpr std::size_t pieceLength = 5;

class SafeWriteFaults : public SafeWriteFixture
{
protected:
    /// Writes a file again and again, each time with the next one of the calls to the system failing, until none does.
    /// After each the file is what it was or what it was to be, as answered, and nothing else lies in the folder.
    /// @param before  makes the folder as it is before each time; the file is "map.csv"
    /// @param refused  calls that fail each time
    template <typename Before>
    void failEveryCallOnce(std::string_view bytes, const Before& before, const std::map<std::string, int>& refused = {})
    {
        for (const int error : {EIO, ENOSPC, EPERM, EINTR})
        {
            std::size_t failing = 0;
            std::size_t made = 0;
            do
            {
                ++failing;
                SCOPED_TRACE("call " + std::to_string(failing) + ", error " + std::to_string(error));
                made = writeWithFault(bytes, before, refused, failing, error);
            } while (failing <= made);
            EXPECT_GE(failing, 5U);
        }
    }

    /// Makes the file with permissions, an access list and an attribute of its own.
    void makeOldFile() const
    {
        folder.write("map.csv", oldText);
        fs::permissions(file(), fs::perms(0640));
        setAttribute(file(), accessListName, accessListFor(4711));
        setAttribute(file(), "user.comment", "boiler house");
    }

    fs::path file() const { return folder / "map.csv"; }

    /// What the folder holds, each name with the contents behind it.
    std::map<std::string, std::string> everything() const
    {
        std::map<std::string, std::string> found;
        for (const auto& entry : fs::directory_iterator(folder.path()))
            found[entry.path().filename()] = contents(entry.path());
        return found;
    }

private:
    template <typename Before>
    std::size_t writeWithFault(std::string_view bytes, const Before& before, const std::map<std::string, int>& refused,
                               std::size_t failing, int error)
    {
        for (const auto& entry : fs::directory_iterator(folder.path()))
            fs::remove_all(entry.path());
        before();
        auto expected = everything();
        const mode_t oldMode = mode(file());
        const auto oldAttributes = attributes(file());
        FaultyCalls calls;
        calls.longestWrite = pieceLength;
        calls.refused = refused;
        calls.failingCall = failing;
        calls.error = error;
        errno = 0;
        const bool written = writeFileSafely(file(), bytes, calls);
        const int told = errno;
        // Where the first try to open fails and there is no file, the second one is the last call that says so.
        EXPECT_TRUE(written || told == error || (failing == 1 && told == ENOENT)) << "told: " << told;
        if (written)
            expected["map.csv"] = bytes;
        if (written && expected.contains("same"))
            expected["same"] = bytes;
        EXPECT_EQ(everything(), expected)
            << (written ? "written" : "not written")
            << ", failed: " << (failing <= calls.made.size() ? calls.made[failing - 1] : "none");
        EXPECT_EQ(attributes(file()), oldAttributes);
        EXPECT_TRUE(oldMode == 0 || mode(file()) == oldMode);
        EXPECT_TRUE(written || failing <= calls.made.size());
        return calls.made.size();
    }
};

} // namespace

TEST_F(SafeWriteFaults, NewFileIsWholeOrNotThere)
{
    failEveryCallOnce(newText, [] {});
}

TEST_F(SafeWriteFaults, ReplacedFileIsWhollyOldOrWhollyNewAndKeepsItsAttributes)
{
    failEveryCallOnce(newText, [this] { makeOldFile(); });
    failEveryCallOnce("", [this] { makeOldFile(); });
}

TEST_F(SafeWriteFaults, FileReplacedWithoutUnnamedFilesIsWhollyOldOrWhollyNew)
{
    const std::map<std::string, int> refused = {{"open unnamed", EOPNOTSUPP}};
    failEveryCallOnce(
        newText, [this] { makeOldFile(); }, refused);
    failEveryCallOnce(
        newText, [] {}, refused);
}

TEST_F(SafeWriteFaults, FileReplacedWhereUnnamedFilesCannotBeNamedIsWhollyOldOrWhollyNew)
{
    const std::map<std::string, int> refused = {{"linkat", ENOENT}};
    failEveryCallOnce(
        newText, [this] { makeOldFile(); }, refused);
    failEveryCallOnce(
        newText, [] {}, refused);
}

TEST_F(SafeWriteFaults, FileWithMoreNamesThanOneIsWhollyOldOrWhollyNew)
{
    const auto before = [this]
    {
        makeOldFile();
        fs::create_hard_link(file(), folder / "same");
    };
    failEveryCallOnce(newText, before);
    failEveryCallOnce("short", before);
}

TEST_F(SafeWriteFaults, StrayOfAnEarlierWriteDoesNoHarmWhenItCannotBeCleared)
{
    const fs::path stray = freshName(file());
    FaultyCalls calls;
    for (const char* const call : {"flock", "unlink"})
    {
        std::ofstream(stray) << "half of it";
        calls.refused = {{call, EACCES}};
        EXPECT_TRUE(writeFileSafely(file(), newText, calls)) << call;
        EXPECT_TRUE(fs::remove(stray)) << call;
        EXPECT_EQ(contents(file()), newText) << call;
    }
}

TEST_F(SafeWriteFaults, FileBehindALinkIsWhollyOldOrWhollyNew)
{
    failEveryCallOnce(newText,
                      [this]
                      {
                          folder.write("same", oldText);
                          fs::create_symlink("same", file());
                      });
}

TEST_F(SafeWriteFaults, FileRewrittenInPlaceIsWhollyOldOrWhollyNew)
{
    const auto before = [this] { folder.write("map.csv", oldText); };
    failEveryCallOnce(newText, before, {{"open unnamed", EACCES}, {"open named", EACCES}});
    failEveryCallOnce("short", before, {{"open unnamed", EACCES}, {"open named", EACCES}});
    failEveryCallOnce("", before, {{"open unnamed", EACCES}, {"open named", EACCES}});
}

TEST_F(SafeWriteFaults, FileRewrittenInPlaceWithoutReservedRoomIsWhollyOldOrWhollyNew)
{
    const auto before = [this] { folder.write("map.csv", oldText); };
    failEveryCallOnce(newText, before,
                      {{"open unnamed", EACCES}, {"open named", EACCES}, {"posixFallocate", EOPNOTSUPP}});
}

TEST_F(SafeWriteFaults, LackOfMemoryLeavesTheOldFile)
{
    for (const char* const call : {"open unnamed", "flistxattr", "pread"})
    {
        folder.write("map.csv", oldText);
        FaultyCalls calls;
        calls.refused["linkat"] = EPERM;
        calls.refused["rename"] = EPERM;
        calls.onCall = [&](const std::string& made)
        {
            if (made == call)
                throw std::bad_alloc();
        };
        EXPECT_FALSE(writeFileSafely(file(), newText, calls)) << call;
        EXPECT_EQ(contents(file()), oldText) << call;
    }
}

TEST_F(SafeWriteFaults, DiskThatTakesAFewBytesAtATimeGetsAllOfThem)
{
    FaultyCalls calls;
    calls.longestWrite = 1;
    EXPECT_TRUE(writeFileSafely(file(), newText, calls));
    EXPECT_EQ(contents(file()), newText);
    calls.refused["rename"] = EBUSY;
    EXPECT_TRUE(writeFileSafely(file(), oldText, calls));
    EXPECT_EQ(contents(file()), oldText);
}

TEST_F(SafeWriteFaults, DiskThatTakesNothingFailsInsteadOfWaitingForEver)
{
    folder.write("map.csv", oldText);
    FaultyCalls calls;
    calls.longestWrite = 0;
    calls.onCall = [&](const std::string&)
    {
        errno = EINTR; // left by an earlier call
        if (calls.made.size() > 100)
            calls.longestWrite = newText.size();
    };
    EXPECT_FALSE(writeFileSafely(file(), newText, calls));
    EXPECT_EQ(contents(file()), oldText);
}

TEST_F(SafeWriteFaults, FileThatMayOnlyBeWrittenGivesBackReservedRoomWhenTheFirstWriteFails)
{
    folder.write("map.csv", oldText);
    FaultyCalls calls;
    calls.refused = {{"open unnamed", EACCES}, {"open named", EACCES}, {"pread", EBADF}, {"pwrite", EIO}};
    EXPECT_FALSE(writeFileSafely(file(), newText, calls));
    EXPECT_TRUE(calls.has("posixFallocate"));
    EXPECT_EQ(contents(file()), oldText);
}

TEST_F(SafeWriteFaults, FileThatCannotBeReadBackIsNotWrittenOver)
{
    folder.write("map.csv", oldText);
    FaultyCalls calls;
    calls.refused = {{"rename", EPERM}, {"pread", EIO}};
    EXPECT_FALSE(writeFileSafely(file(), newText, calls));
    EXPECT_EQ(contents(file()), oldText);
}

TEST_F(SafeWriteFaults, SavingAndExportingToAFullDiskLeaveTheOldFile)
{
    folder.write("map.csv", oldText);
    const auto map = std::make_unique<RegisterMap>();
    draw(map->slots(RegisterSpace::Holding), 0, "AAb");
    const FileSizeLimit full(20);
    EXPECT_FALSE(saveDefinitionFile(file(), *map));
    EXPECT_EQ(contents(file()), oldText);
    EXPECT_FALSE(exportMap(*map, file()));
    EXPECT_EQ(contents(file()), oldText);
}
