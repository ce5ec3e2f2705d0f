#include "files/KeyFile.h"

#include "tests/core/TempFolder.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

using namespace std::string_literals;

namespace
{

std::optional<std::string> pathIn(std::string_view bytes)
{
    const TempFolder folder;
    return readKeyFileEntry(folder.write("suite.conf", bytes), "Path");
}

} // namespace

TEST(KeyFile, ValueIsWhatFollowsTheNameAndItsSign)
{
    EXPECT_EQ(pathIn("Path=/opt/suite/\n"), "/opt/suite/");
    EXPECT_EQ(pathIn("Path=/opt/suite/"), "/opt/suite/");
    EXPECT_EQ(pathIn("Path=a=b\n"), "a=b");
    EXPECT_EQ(pathIn("Path=\n"), "");
}

TEST(KeyFile, EveryLineEndEndsTheValue)
{
    EXPECT_EQ(pathIn("Path=/opt/suite/\r\nMore=1\r\n"), "/opt/suite/");
    EXPECT_EQ(pathIn("Path=/opt/suite/\rMore=1\r"), "/opt/suite/");
}

TEST(KeyFile, NothingInAValueIsReplaced)
{
    for (const std::string& value :
         {R"(C:\new\table\)"s, R"(\\server\share\)"s, R"("/opt/quoted/")"s, "'/opt/'"s, "$HOME/suite/"s, "${HOME}/"s,
          "%APPDATA%/"s, "  /opt/two blanks/  "s, "/opt/\ttab\t"s, "/opt/#1;2/"s, "/opt/caf\xE9/"s, "\xC3\xBC/"s})
        EXPECT_EQ(pathIn("Path=" + value + "\n"), value);
}

TEST(KeyFile, EntryThatIsMissingIsEmpty)
{
    for (const char* text : {"", "\n", "Path", "path=/opt/\n", "PATH=/opt/\n", "Paths=/opt/\n", "OldPath=/opt/\n",
                             "Path =/opt/\n", " Path=/opt/\n", "=/opt/\n"})
        EXPECT_EQ(pathIn(text), "") << text;
}

TEST(KeyFile, CommentsAndOtherEntriesAreSkipped)
{
    EXPECT_EQ(pathIn("# Path=/comment/\n; Path=/comment/\n\nVersion=3\nPath=/opt/\n"), "/opt/");
}

TEST(KeyFile, EntriesOfGroupsAreOthers)
{
    EXPECT_EQ(pathIn("Path=/opt/\n[Group]\nPath=/group/\n"), "/opt/");
    EXPECT_EQ(pathIn("[Group]\nPath=/group/\n"), "");
}

TEST(KeyFile, FirstEntryOfANameHolds)
{
    EXPECT_EQ(pathIn("Path=\nPath=/second/\n"), "");
    EXPECT_EQ(pathIn("Path=/first/\nPath=/second/\n"), "/first/");
}

TEST(KeyFile, WithoutAReadableFileThereIsNoKey)
{
    const TempFolder folder;
    EXPECT_EQ(readKeyFileEntry(folder / "missing.conf", "Path"), std::nullopt);
    EXPECT_EQ(readKeyFileEntry(folder.path(), "Path"), std::nullopt);
    EXPECT_EQ(readKeyFileEntry(folder.write("file", "Path=x") / "below", "Path"), std::nullopt);
    EXPECT_EQ(readKeyFileEntry({}, "Path"), std::nullopt);
}
