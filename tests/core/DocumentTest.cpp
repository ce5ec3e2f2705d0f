#include "map/Document.h"

#include "files/ReadFile.h"
#include "map/DefinitionFile.h"
#include "tests/core/TempFolder.h"

#include <gtest/gtest.h>

namespace
{

constexpr std::string_view database = R"({"structure": [{"lable": "Works", "dbprefix": ""}],
 "database": [{"Name": "NAME", "Type": "String", "Size": 6, "Elements": 1}]})";

constexpr std::string_view remarkAndObject = "# written by Ann\nCOIL,00007,NONE,INT16,NAME,Maker,1,UNLOCKED,ERROR\n";
constexpr std::string_view objectAlone = "COIL,00007,NONE,INT16,NAME,Maker,1,UNLOCKED,ERROR\n";

/// A document of a file of these bytes, opened and changed.
class ChangedDocument : public testing::Test
{
protected:
    Document& open(std::string_view bytes)
    {
        folder.write("plant.csv", bytes);
        document.loadDefinition();
        document.map.placeObject(RegisterSpace::Input, 4, freeSlot(4), 1);
        return document;
    }

    TempFolder folder;
    const std::filesystem::path file = folder / "plant.csv";
    const std::filesystem::path oldBytes = folder / "plant.csv~";
    Document document{"", file, 0};
};

} // namespace

TEST(Document, StartsEmptyWithTheFloatByteOrderOfTheSwapFlags)
{
    const Document document("", "", 6);
    EXPECT_FALSE(document.map.isModified());
    EXPECT_EQ(document.database.tags.count(), 0);
    EXPECT_EQ(document.defaultByteOrder, (DefaultByteOrder{.floatSwapBytes = true, .floatSwapWords = true}));
}

TEST(Document, DatabaseSizesAndJudgesTheObjectsOfTheDefinition)
{
    TempFolder folder;
    folder.write("plant.json", database);
    folder.write("plant.csv", "HOLDING,00010,NONE,STRING,NAME,Maker\n");
    Document document(folder / "plant.json", folder / "plant.csv", 0);
    EXPECT_EQ(document.loadDatabase(), LoadResult::Loaded);
    document.loadDefinition();

    EXPECT_EQ(document.map.slots(RegisterSpace::Holding)[12].registerCount, 3U);
    EXPECT_EQ(document.map.slots(RegisterSpace::Holding)[12].tagIndex, 0);
    EXPECT_FALSE(document.map.isModified());
}

TEST(Document, MissingDatabaseIsReportedAndTheMapIsReadAllTheSame)
{
    TempFolder folder;
    folder.write("plant.csv", "COIL,00007,NONE,INT16,NAME,Maker,1,UNLOCKED,OK\n");
    Document document(folder / "none.json", folder / "plant.csv", 0);
    EXPECT_EQ(document.loadDatabase(), LoadResult::FileNotFound);
    document.loadDefinition();

    EXPECT_TRUE(document.map.slots(RegisterSpace::Coil)[7].used);
    EXPECT_EQ(document.map.slots(RegisterSpace::Coil)[7].tagIndex, -1);
}

TEST(Document, ChangeMadeBeforeAMissingDefinitionIsReadIsNothingToSave)
{
    const TempFolder folder;
    Document document("", folder / "none.csv", 0);
    document.map.placeObject(RegisterSpace::Input, 4, freeSlot(4), 1);
    document.loadDefinition();
    EXPECT_FALSE(document.map.isModified());
}

TEST(Document, SavesToItsDefinitionFileAndHasNoUnsavedChangesThen)
{
    const TempFolder folder;
    Document document("", folder / "plant.csv", 0);
    EXPECT_FALSE(document.hasUnsavedChanges());
    document.map.placeObject(RegisterSpace::Input, 4, freeSlot(4), 1);
    EXPECT_TRUE(document.hasUnsavedChanges());
    EXPECT_TRUE(document.saveDefinition());
    EXPECT_TRUE(std::filesystem::exists(folder / "plant.csv"));
    EXPECT_FALSE(document.hasUnsavedChanges());
}

TEST(Document, KeepsItsUnsavedChangesWhenTheFileCannotBeWritten)
{
    const TempFolder folder;
    Document document("", folder / "none" / "plant.csv", 0);
    document.map.placeObject(RegisterSpace::Input, 4, freeSlot(4), 1);
    EXPECT_FALSE(document.saveDefinition());
    EXPECT_TRUE(document.hasUnsavedChanges());
}

TEST(Document, HasNoUnsavedChangesOnceTheyAreGivenUp)
{
    Document document("", "", 0);
    document.map.placeObject(RegisterSpace::Input, 4, freeSlot(4), 1);
    document.discardChanges();
    EXPECT_FALSE(document.hasUnsavedChanges());
    EXPECT_TRUE(document.map.isModified());
}

TEST_F(ChangedDocument, KeepsTheOldBytesOfAFileThatHeldMoreThanASaveWritesBack)
{
    EXPECT_TRUE(open(remarkAndObject).saveDefinition());
    EXPECT_EQ(readFile(oldBytes), remarkAndObject);
    EXPECT_EQ(readFile(file), definitionText(document.map));
    EXPECT_FALSE(document.hasUnsavedChanges());
}

TEST_F(ChangedDocument, KeepsNoOldBytesOfAFileThatIsWrittenBackWhole)
{
    folder.write("plant.csv~", "of an earlier time");
    EXPECT_TRUE(open(objectAlone).saveDefinition());
    EXPECT_EQ(readFile(oldBytes), "of an earlier time");
}

TEST_F(ChangedDocument, KeepsTheOldBytesOnceAndNotWhatASaveHasMadeOfThem)
{
    EXPECT_TRUE(open(remarkAndObject).saveDefinition());
    EXPECT_TRUE(document.saveDefinition());
    EXPECT_EQ(readFile(oldBytes), remarkAndObject);
}

TEST_F(ChangedDocument, KeepsOldBytesOnlyWhenItIsSaved)
{
    open(remarkAndObject).discardChanges();
    EXPECT_EQ(readFile(oldBytes), std::nullopt);
    EXPECT_EQ(readFile(file), remarkAndObject);
}

TEST_F(ChangedDocument, KeepsOldBytesInTheSpareFolderWhereTheFilesOwnTakesNone)
{
    std::filesystem::create_directory(oldBytes);
    document.spareFolder = folder / "spare";
    EXPECT_TRUE(open(remarkAndObject).saveDefinition());
    EXPECT_EQ(readFile(file), definitionText(document.map));
    const std::filesystem::directory_iterator kept(document.spareFolder);
    ASSERT_NE(kept, std::filesystem::directory_iterator());
    EXPECT_EQ(kept->path().extension(), ".csv~");
    EXPECT_EQ(readFile(kept->path()), remarkAndObject);
}

TEST_F(ChangedDocument, IsWrittenOverLinesThatNoFolderTakes)
{
    std::filesystem::create_directory(oldBytes);
    EXPECT_TRUE(open(remarkAndObject).saveDefinition());
    EXPECT_EQ(readFile(file), definitionText(document.map));
}

TEST_F(ChangedDocument, IsWrittenWhereTheFileThatHeldMoreIsGone)
{
    open(remarkAndObject);
    std::filesystem::remove(file);
    EXPECT_TRUE(document.saveDefinition());
    EXPECT_EQ(readFile(file), definitionText(document.map));
    EXPECT_EQ(readFile(oldBytes), std::nullopt);
}
