#include "FaultyCalls.h"
#include "FileSizeLimit.h"
#include "SafeWriteFixture.h"
#include "files/posix/SafeWrite.h"

#include <optional>
#include <sched.h>
#include <sys/mount.h>

namespace fs = std::filesystem;

namespace
{

/// Each test works in a process that sees mounts of its own. Where the system does not let us mount, calls that fail
/// stand in for them.
class SafeWriteMount : public SafeWriteFixture
{
protected:
    static bool mountForThisProcess(const fs::path& what, const fs::path& where, const char* type, unsigned long flags,
                                    const char* options)
    {
        return unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
               mount(what.c_str(), where.c_str(), type, flags, options) == 0;
    }

    /// Ends the process with 0 when all was as it should be.
    [[noreturn]] static void end(bool right) { _exit(right ? 0 : 1); }

    FaultyCalls calls;
};

} // namespace

TEST_F(SafeWriteMount, FileThatIsAMountPointIsRewrittenInPlace)
{
    const fs::path path = folder.write("map.csv", "covered");
    const fs::path mounted = folder.write("mounted.csv", "old text");
    const auto write = [&]
    {
        const bool isMounted = mountForThisProcess(mounted, path, nullptr, MS_BIND, nullptr);
        const ino_t old = identity(path);
        if (!isMounted)
            calls.refused["rename"] = EBUSY;
        end(writeFileSafely(path, "new", calls) && contents(path) == "new" && identity(path) == old &&
            (!isMounted || contents(mounted) == "new"));
    };
    EXPECT_EXIT(write(), testing::ExitedWithCode(0), "");
}

TEST_F(SafeWriteMount, DiskThatRunsFullKeepsTheOldFileAndNothingElse)
{
    const auto write = [&]
    {
        std::optional<FileSizeLimit> limit;
        if (!mountForThisProcess("none", folder.path(), "tmpfs", 0, "size=64k"))
            limit.emplace(65536);
        const fs::path path = folder.write("map.csv", "old text");
        const bool refused = !writeFileSafely(path, std::string(100000, 'x'));
        const bool refusedNew = !writeFileSafely(folder / "new.csv", std::string(100000, 'x'));
        fs::create_hard_link(path, folder / "same");
        const bool refusedInPlace = !writeFileSafely(path, std::string(100000, 'x'));
        end(refused && refusedNew && refusedInPlace && contents(path) == "old text" &&
            !fs::exists(folder / "new.csv") && strays() == 0 && writeFileSafely(path, std::string(20000, 'y')));
    };
    EXPECT_EXIT(write(), testing::ExitedWithCode(0), "");
}

TEST_F(SafeWriteMount, DiskThatMayOnlyBeReadKeepsTheOldFile)
{
    const fs::path path = folder.write("map.csv", "old text");
    const auto write = [&]
    {
        const bool isMounted =
            mountForThisProcess(folder.path(), folder.path(), nullptr, MS_BIND, nullptr) &&
            mount(nullptr, folder.path().c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr) == 0;
        if (!isMounted)
            calls.refused = {{"open", EROFS}, {"open unnamed", EROFS}, {"open named", EROFS}};
        end(!writeFileSafely(path, "new", calls) && !writeFileSafely(folder / "new.csv", "new", calls));
    };
    EXPECT_EXIT(write(), testing::ExitedWithCode(0), "");
    EXPECT_EQ(contents(path), "old text");
    EXPECT_FALSE(fs::exists(folder / "new.csv"));
}
