#include "AccessList.h"
#include "FaultyCalls.h"
#include "SafeWriteFixture.h"
#include "files/posix/SafeWrite.h"

namespace fs = std::filesystem;

namespace
{

/// The attributes of a file system that takes them, whatever the one that the test runs on does: in the memory, by
/// file.
class RememberedAttributes : public FaultyCalls
{
public:
    using Values = std::map<std::string, std::string>;

    /// What a fresh file gets from its folder.
    Values inherited;

    /// Attributes that nobody may set.
    std::string fixedName;

    Values& of(ino_t file) { return files.try_emplace(file, inherited).first->second; }

    ssize_t flistxattr(int descriptor, char* names, std::size_t) override
    {
        if (fails("flistxattr"))
            return -1;
        std::string list;
        for (const auto& [name, value] : of(descriptor))
            list += name + '\0';
        std::copy(list.begin(), list.end(), names);
        return static_cast<ssize_t>(list.size());
    }
    ssize_t fgetxattr(int descriptor, const char* name, void* value, std::size_t) override
    {
        if (fails("fgetxattr") || !isThere(descriptor, name))
            return -1;
        const std::string& bytes = of(descriptor)[name];
        std::copy(bytes.begin(), bytes.end(), static_cast<char*>(value));
        return static_cast<ssize_t>(bytes.size());
    }
    int fsetxattr(int descriptor, const char* name, const void* value, std::size_t size, int) override
    {
        if (fails("fsetxattr"))
            return -1;
        errno = EPERM;
        if (name == fixedName)
            return -1;
        of(descriptor)[name].assign(static_cast<const char*>(value), size);
        return 0;
    }
    int fremovexattr(int descriptor, const char* name) override
    {
        if (fails("fremovexattr") || !isThere(descriptor, name))
            return -1;
        of(descriptor).erase(name);
        return 0;
    }

private:
    Values& of(int descriptor)
    {
        struct stat state = {};
        ::fstat(descriptor, &state);
        return of(state.st_ino);
    }

    bool isThere(int descriptor, const char* name)
    {
        errno = ENODATA;
        return of(descriptor).contains(name);
    }

    std::map<ino_t, Values> files;
};

class SafeWriteAccess : public SafeWriteFixture
{
protected:
    const fs::path file = folder.write("map.csv", "old");
    RememberedAttributes calls;
};

} // namespace

TEST_F(SafeWriteAccess, AccessListOfTheOldFileIsKept)
{
    setAttribute(file, accessListName, accessListFor(4711));
    const auto old = attributes(file);
    const mode_t oldMode = mode(file);
    EXPECT_TRUE(writeFileSafely(file, "new"));
    EXPECT_EQ(contents(file), "new");
    EXPECT_EQ(attributes(file), old);
    EXPECT_EQ(mode(file), oldMode);
}

TEST_F(SafeWriteAccess, DefaultAccessListOfTheFolderIsNotTakenOnByAnOldFile)
{
    fs::permissions(file, fs::perms(0640));
    setAttribute(folder.path(), defaultListName, accessListFor(4711));
    const auto old = attributes(file);
    EXPECT_TRUE(writeFileSafely(file, "new"));
    EXPECT_EQ(attributes(file), old);
    EXPECT_EQ(mode(file), 0640U);
}

TEST_F(SafeWriteAccess, DefaultAccessListOfTheFolderIsTakenOnByANewFile)
{
    setAttribute(folder.path(), defaultListName, accessListFor(4711));
    const fs::path other = folder.write("other.csv", "made as any program makes a file");
    EXPECT_TRUE(writeFileSafely(folder / "new.csv", "new"));
    EXPECT_EQ(attributes(folder / "new.csv"), attributes(other));
    EXPECT_EQ(mode(folder / "new.csv"), mode(other));
}

TEST_F(SafeWriteAccess, AttributesOfTheUserAreKept)
{
    setAttribute(file, "user.comment", "boiler house");
    setAttribute(file, "user.empty", "");
    setAttribute(file, "user.long", std::string(1000, 'x'));
    const auto old = attributes(file);
    EXPECT_TRUE(writeFileSafely(file, "new"));
    EXPECT_EQ(attributes(file), old);
}

TEST_F(SafeWriteAccess, FreshFileHasExactlyTheAttributesOfTheOldOne)
{
    const RememberedAttributes::Values old = {{accessListName, "a list"}, {"user.comment", "boiler house"}};
    calls.of(identity(file)) = old;
    calls.inherited = {{accessListName, "the folder's list"}};
    EXPECT_TRUE(writeFileSafely(file, "new", calls));
    EXPECT_EQ(contents(file), "new");
    EXPECT_EQ(calls.of(identity(file)), old);
}

TEST_F(SafeWriteAccess, AccessListFromTheFolderGoesWhenTheOldFileHasNone)
{
    calls.of(identity(file)) = {};
    calls.inherited = {{accessListName, "the folder's list"}};
    EXPECT_TRUE(writeFileSafely(file, "new", calls));
    EXPECT_TRUE(calls.of(identity(file)).empty());
}

TEST_F(SafeWriteAccess, FileWithAnAttributeThatCannotBeCarriedIsRewrittenInPlace)
{
    const ino_t old = identity(file);
    calls.of(old) = {{"user.comment", "boiler house"}};
    calls.fixedName = "user.comment";
    EXPECT_TRUE(writeFileSafely(file, "new", calls));
    EXPECT_EQ(contents(file), "new");
    EXPECT_EQ(identity(file), old);
}

TEST_F(SafeWriteAccess, LabelThatTheFreshFileHasAlreadyNeedsNoRightToSetIt)
{
    const ino_t old = identity(file);
    calls.of(old) = {{"security.selinux", "a label"}};
    calls.inherited = {{"security.selinux", "a label"}};
    calls.fixedName = "security.selinux";
    EXPECT_TRUE(writeFileSafely(file, "new", calls));
    EXPECT_NE(identity(file), old);
}

TEST_F(SafeWriteAccess, ChecksumsAndRightsThatWereGivenToTheOldContentsAreNotCarried)
{
    const ino_t old = identity(file);
    calls.of(old) = {{"security.ima", "a checksum"}, {"security.evm", "another"}, {"security.capability", "rights"}};
    EXPECT_TRUE(writeFileSafely(file, "new", calls));
    EXPECT_NE(identity(file), old);
    EXPECT_TRUE(calls.of(identity(file)).empty());
}

TEST_F(SafeWriteAccess, FileSystemWithoutAttributesExchangesTheFileAllTheSame)
{
    const ino_t old = identity(file);
    calls.refused = {{"flistxattr", ENOTSUP}, {"fremovexattr", ENOTSUP}};
    EXPECT_TRUE(writeFileSafely(file, "new", calls));
    EXPECT_EQ(contents(file), "new");
    EXPECT_NE(identity(file), old);
}

TEST_F(SafeWriteAccess, FileOfAnotherGroupThatCannotBeGivenIsRewrittenInPlace)
{
    const ino_t old = identity(file);
    calls.refused["fchown"] = EPERM;
    EXPECT_TRUE(writeFileSafely(file, "new", calls));
    EXPECT_EQ(contents(file), "new");
    EXPECT_EQ(identity(file), old);
}
