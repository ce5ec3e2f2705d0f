#include "map/Document.h"

#include "tests/core/TempFolder.h"

#include <gtest/gtest.h>

namespace
{

constexpr std::string_view database = R"({"structure": [{"lable": "Works", "dbprefix": ""}],
 "database": [{"Name": "NAME", "Type": "String", "Size": 6, "Elements": 1}]})";

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
