#include "FaultyCalls.h"
#include "SafeWriteFixture.h"
#include "files/posix/SafeWrite.h"
#include "files/posix/Strays.h"

#include <csignal>
#include <sys/file.h>
#include <sys/wait.h>

namespace fs = std::filesystem;

namespace
{

class SafeWriteStrays : public SafeWriteFixture
{
protected:
    /// Writes in a process of its own that ends, as if by power cut, before the call with this number.
    /// @return true when it was ended so, false when there were fewer calls
    bool endBeforeCall(std::size_t number, const std::map<std::string, int>& refused) const
    {
        const pid_t writer = fork();
        if (writer == 0)
        {
            FaultyCalls calls;
            calls.refused = refused;
            calls.onCall = [&](const std::string&)
            {
                if (calls.made.size() == number)
                    raise(SIGKILL);
            };
            writeFileSafely(file, "the new text", calls);
            _exit(0);
        }
        int status = 0;
        waitpid(writer, &status, 0);
        return WIFSIGNALED(status);
    }

    /// Ends writing before every call in turn; the file is whole each time, and the next writing clears up.
    /// @return after how many of the calls a stray was left
    int endBeforeEveryCall(const std::map<std::string, int>& refused) const
    {
        int strayed = 0;
        for (std::size_t number = 1;; ++number)
        {
            folder.write("map.csv", "old");
            const bool ended = endBeforeCall(number, refused);
            EXPECT_TRUE(contents(file) == "old" || contents(file) == "the new text") << "ended before call " << number;
            strayed += strays();
            EXPECT_TRUE(writeFileSafely(file, "next"));
            EXPECT_EQ(strays(), 0) << "ended before call " << number;
            if (!ended)
                return strayed;
        }
    }

    bool takesUnnamedFiles() const
    {
        const int descriptor = open(folder.path().c_str(), O_WRONLY | O_TMPFILE, 0600);
        close(descriptor);
        return descriptor >= 0;
    }

    const fs::path file = folder / "map.csv";
};

} // namespace

TEST_F(SafeWriteStrays, WritingThatIsEndedAtAnyCallLeavesTheFileWholeAndIsClearedAway)
{
    const int strayed = endBeforeEveryCall({});
    EXPECT_EQ(strayed == 1, takesUnnamedFiles()) << strayed;
}

TEST_F(SafeWriteStrays, WritingThroughANamedFileThatIsEndedAtAnyCallIsClearedAway)
{
    EXPECT_GE(endBeforeEveryCall({{"open unnamed", EOPNOTSUPP}}), 5);
}

TEST_F(SafeWriteStrays, FreshFileHasNoNameWhileItIsWrittenWhereTheFileSystemCan)
{
    folder.write("map.csv", "old");
    FaultyCalls calls;
    int named = -1;
    calls.onCall = [&](const std::string& call) { named = call == "fsync file" ? strays() : named; };
    EXPECT_TRUE(writeFileSafely(file, "new", calls));
    EXPECT_EQ(named, takesUnnamedFiles() ? 0 : 1);
    EXPECT_FALSE(calls.has("unlink"));
}

TEST_F(SafeWriteStrays, StrayIsClearedWhereItsTargetIsRewrittenInPlace)
{
    folder.write("map.csv", "old");
    fs::create_hard_link(file, folder / "same");
    std::ofstream(freshName(file)) << "half of it";
    EXPECT_TRUE(writeFileSafely(file, "new"));
    EXPECT_EQ(strays(), 0);
}

TEST_F(SafeWriteStrays, StrayIsClearedBesideTheFileThatALinkLeadsTo)
{
    fs::create_directory(folder / "elsewhere");
    fs::create_symlink("elsewhere/map.csv", file);
    std::ofstream(freshName(folder / "elsewhere" / "map.csv")) << "half of it";
    EXPECT_TRUE(writeFileSafely(file, "new"));
    EXPECT_EQ(strays(), 0);
}

TEST_F(SafeWriteStrays, StraysOfOtherFilesStay)
{
    const fs::path other = freshName(folder / "other.csv");
    std::ofstream(other) << "somebody may need it";
    EXPECT_TRUE(writeFileSafely(file, "new"));
    EXPECT_TRUE(fs::remove(other));
}

TEST_F(SafeWriteStrays, FilesWithSimilarNamesStay)
{
    const std::string stray = freshName(file).string();
    std::string notHexadecimal = stray;
    notHexadecimal.back() = 'g';
    for (const std::string& name : {stray + "0", stray.substr(0, stray.size() - 1), notHexadecimal})
    {
        std::ofstream(name) << "not ours";
        EXPECT_TRUE(writeFileSafely(file, "new"));
        EXPECT_TRUE(fs::remove(name)) << name;
    }
}

TEST_F(SafeWriteStrays, FileThatAnotherProgramIsWritingStays)
{
    const fs::path stray = freshName(file);
    const int writer = open(stray.c_str(), O_WRONLY | O_CREAT, 0600);
    ASSERT_EQ(flock(writer, LOCK_EX), 0);
    EXPECT_TRUE(writeFileSafely(file, "new"));
    EXPECT_TRUE(fs::exists(stray));
    close(writer);
    EXPECT_TRUE(writeFileSafely(file, "newer"));
    EXPECT_FALSE(fs::exists(stray));
}

TEST_F(SafeWriteStrays, FreshFileIsInUseWhileItIsWritten)
{
    FaultyCalls calls;
    calls.refused["open unnamed"] = EOPNOTSUPP;
    bool nested = false;
    calls.onCall = [&](const std::string& call)
    {
        if (call == "fsync file")
        {
            nested = writeFileSafely(file, "by somebody else");
            EXPECT_EQ(strays(), 1);
        }
    };
    EXPECT_TRUE(writeFileSafely(file, "new", calls));
    EXPECT_TRUE(nested);
    EXPECT_TRUE(calls.has("open named"));
    EXPECT_EQ(contents(file), "new");
}

TEST_F(SafeWriteStrays, LinkWithTheNameOfAStrayIsNotFollowed)
{
    const fs::path precious = folder.write("precious", "not to be touched");
    const fs::path stray = freshName(file);
    fs::create_symlink(precious, stray);
    EXPECT_TRUE(writeFileSafely(file, "new"));
    EXPECT_EQ(contents(precious), "not to be touched");
    EXPECT_TRUE(fs::remove(stray));
}
