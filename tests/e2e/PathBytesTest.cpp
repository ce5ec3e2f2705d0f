// A path is the bytes that the system gave: the file of exactly that name is opened and saved.

#include "tests/e2e/SmallPlant.h"

#include <cstdlib>

namespace fs = std::filesystem;

namespace
{

class PathBytes : public SmallPlant
{
protected:
    /// Opens both files under names with these bytes in them, changes the map and saves it.
    void expectOwnFileOpenedAndSaved(const std::string& bytes)
    {
        const fs::path tags = folder / ("plant" + bytes + ".json");
        fs::copy_file(database, tags);
        const fs::path file = folder.write("map" + bytes + ".csv", twoObjects);
        ProgramUnderTest& program = open(tags, file);
        EXPECT_EQ(program.tagGrid().filledRows(), 6);
        ASSERT_EQ(program.mapGrid().filledRows(), 2);
        deleteFirstRow(program);
        leaveAnswering("Yes");
        EXPECT_EQ(contentOf(file), secondObject);
        EXPECT_EQ(filesInFolder(), 4) << "a file of another name was made";
    }

private:
    /// The home folder, the small plant's own database, and the two files.
    std::ptrdiff_t filesInFolder() const { return std::distance(fs::directory_iterator(folder.path()), {}); }
};

} // namespace

TEST_F(PathBytes, OfAnUmlautCountUnderAPlainCLocale)
{
    ::setenv("LC_ALL", "C", 1);
    expectOwnFileOpenedAndSaved("-pl\xC3\xA4nt");
}

TEST_F(PathBytes, ThatAreNoUtf8CountUnderAUtf8Locale)
{
    ::setenv("LC_ALL", "C.UTF-8", 1);
    expectOwnFileOpenedAndSaved("-pl\xE4nt");
}
