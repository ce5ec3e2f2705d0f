#include "files/posix/OldBytes.h"

#include "AccessList.h"
#include "FaultyCalls.h"
#include "FileSizeLimit.h"
#include "SafeWriteFixture.h"
#include "files/posix/SafeWrite.h"
#include "files/posix/Strays.h"

#include <new>

namespace fs = std::filesystem;

namespace
{

class OldBytes : public SafeWriteFixture
{
protected:
    const fs::path file = folder / "map.csv";
    const fs::path copy = folder / "map.csv~";
    FaultyCalls calls;
};

} // namespace

TEST_F(OldBytes, AreKeptBesideTheFileWhichStays)
{
    const std::string bytes("any \r\n bytes\0 \xff", 15);
    folder.write("map.csv", bytes);
    const ino_t old = identity(file);
    EXPECT_TRUE(keepOldBytes(file));
    EXPECT_EQ(contents(copy), bytes);
    EXPECT_EQ(contents(file), bytes);
    EXPECT_EQ(identity(file), old);
}

TEST_F(OldBytes, StayWhenTheFileIsSavedAfterwards)
{
    folder.write("map.csv", "old");
    EXPECT_TRUE(keepOldBytes(file));
    EXPECT_TRUE(writeFileSafely(file, "new"));
    EXPECT_EQ(contents(copy), "old");
    EXPECT_EQ(contents(file), "new");
}

TEST_F(OldBytes, TakeThePlaceOfAnOlderCopy)
{
    folder.write("map.csv", "old");
    folder.write("map.csv~", "a much longer text that is older still");
    EXPECT_TRUE(keepOldBytes(file));
    EXPECT_EQ(contents(copy), "old");
}

TEST_F(OldBytes, HavePermissionsAndAccessListOfTheFile)
{
    folder.write("map.csv", "old");
    folder.write("map.csv~", "older");
    fs::permissions(file, fs::perms(0640));
    setAttribute(file, accessListName, accessListFor(4711));
    EXPECT_TRUE(keepOldBytes(file));
    EXPECT_EQ(mode(copy), mode(file));
    EXPECT_EQ(attributes(copy), attributes(file));
}

TEST_F(OldBytes, AreForTheOwnerAloneWherePermissionsCannotBeGiven)
{
    folder.write("map.csv", "old");
    fs::permissions(file, fs::perms(0666));
    calls.refused["fchown"] = EPERM;
    EXPECT_TRUE(keepOldBytes(file, calls));
    EXPECT_EQ(contents(copy), "old");
    EXPECT_EQ(mode(copy), 0600U);
}

TEST_F(OldBytes, LieBesideTheFileThatALinkLeadsTo)
{
    fs::create_directory(folder / "elsewhere");
    folder.write("elsewhere/plant.csv", "old");
    fs::create_symlink("elsewhere/plant.csv", file);
    EXPECT_TRUE(keepOldBytes(file));
    EXPECT_EQ(contents(folder / "elsewhere" / "plant.csv~"), "old");
    EXPECT_FALSE(fs::exists(copy));
}

TEST_F(OldBytes, ReplaceALinkOfTheirNameInsteadOfFollowingIt)
{
    folder.write("map.csv", "old");
    const fs::path precious = folder.write("precious", "not to be touched");
    fs::create_symlink(precious, copy);
    EXPECT_TRUE(keepOldBytes(file));
    EXPECT_FALSE(fs::is_symlink(copy));
    EXPECT_EQ(contents(copy), "old");
    EXPECT_EQ(contents(precious), "not to be touched");
}

TEST_F(OldBytes, AreKeptUnderANameThatIsNoUtf8)
{
    folder.write("pl\xe4nt.csv", "old");
    EXPECT_TRUE(keepOldBytes(folder / "pl\xe4nt.csv"));
    EXPECT_EQ(contents(folder / "pl\xe4nt.csv~"), "old");
}

TEST_F(OldBytes, OfNothingAreNotKept)
{
    EXPECT_FALSE(keepOldBytes(file));
    fs::create_symlink("round", folder / "round");
    EXPECT_FALSE(keepOldBytes(folder / "round"));
    fs::create_directory(file);
    EXPECT_FALSE(keepOldBytes(file));
    EXPECT_FALSE(fs::exists(copy));
}

TEST_F(OldBytes, OfAPipeAreNotWaitedFor)
{
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_FALSE(keepOldBytes(file));
    EXPECT_FALSE(fs::exists(copy));
}

TEST_F(OldBytes, AreNotKeptOverAFolderOfTheirName)
{
    folder.write("map.csv", "old");
    fs::create_directory(copy);
    EXPECT_FALSE(keepOldBytes(file));
    EXPECT_TRUE(fs::is_empty(copy));
}

TEST_F(OldBytes, AreNotKeptUnderANameThatIsTooLong)
{
    const fs::path longest = folder.write(std::string(255, 'm'), "old");
    EXPECT_FALSE(keepOldBytes(longest));
    EXPECT_EQ(contents(longest), "old");
}

TEST_F(OldBytes, LeaveTheOlderCopyWhenTheDiskIsFull)
{
    folder.write("map.csv", std::string(5000, 'x'));
    folder.write("map.csv~", "older");
    const auto keep = [this]
    {
        const FileSizeLimit full(1000);
        std::signal(SIGXFSZ, SIG_DFL); // would end the program
        _exit(keepOldBytes(file) ? 1 : 0);
    };
    EXPECT_EXIT(keep(), testing::ExitedWithCode(0), "");
    EXPECT_EQ(contents(copy), "older");
}

TEST_F(OldBytes, AreWhollyOldOrWhollyNewWhicheverCallFails)
{
    folder.write("map.csv", "the old text");
    for (const char* const refused : {"none", "open unnamed", "linkat"})
    {
        std::size_t failing = 0;
        std::size_t made = 0;
        do
        {
            folder.write("map.csv~", "an older one");
            FaultyCalls faulty;
            faulty.longestWrite = 5;
            faulty.refused[refused] = ENOENT;
            faulty.failingCall = ++failing;
            const bool kept = keepOldBytes(file, faulty);
            made = faulty.made.size();
            EXPECT_EQ(contents(copy), kept ? "the old text" : "an older one") << refused << ", call " << failing;
            EXPECT_TRUE(kept || failing <= made) << refused;
            EXPECT_EQ(contents(file), "the old text");
            EXPECT_EQ(strays(), 0) << refused << ", call " << failing;
        } while (failing <= made);
    }
}

TEST_F(OldBytes, AreNotKeptWithoutMemoryForThem)
{
    folder.write("map.csv", "old");
    folder.write("map.csv~", "older");
    calls.onCall = [](const std::string& call)
    {
        if (call == "pread")
            throw std::bad_alloc();
    };
    EXPECT_FALSE(keepOldBytes(file, calls));
    EXPECT_EQ(contents(copy), "older");
}

TEST_F(OldBytes, AreNotKeptWhenTheyCannotBeRead)
{
    folder.write("map.csv", "old");
    calls.refused["pread"] = EIO;
    EXPECT_FALSE(keepOldBytes(file, calls));
    EXPECT_FALSE(fs::exists(copy));
}

TEST_F(OldBytes, ClearAwayTheStraysOfEarlierOnes)
{
    folder.write("map.csv", "old");
    std::ofstream(freshName(copy)) << "half of it";
    EXPECT_TRUE(keepOldBytes(file));
    EXPECT_EQ(strays(), 0);
}
