// Files that are read while something else goes on: what is there at which moment, and what remains of bad files.

#include "map/DocumentLoading.h"

#include "tests/core/TempFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

constexpr std::string_view wholeDatabase = R"({"structure": [{"lable": "Works", "dbprefix": ""}],
 "database": [{"Name": "NAME", "Type": "String", "Size": 6, "Elements": 1}]})";

/// Its length has to be asked of the database.
constexpr std::string_view lineOfSixFields = "HOLDING,00010,NONE,STRING,NAME,Maker\n";

/// A document of two files.
class DocumentLoadingTest : public testing::Test
{
protected:
    /// The document, not loaded yet, of files with these texts.
    Document& documentOf(std::string_view database, std::string_view definition)
    {
        folder.write("plant.json", database);
        folder.write("plant.csv", definition);
        return document;
    }

    const RegisterEntry& slot() const { return document.map.slots(RegisterSpace::Holding)[10]; }

    TempFolder folder;
    Document document{folder / "plant.json", folder / "plant.csv", 0};
};

} // namespace

TEST_F(DocumentLoadingTest, BothFilesAreThereWhenItHasFinished)
{
    DocumentLoading loading(documentOf(wholeDatabase, lineOfSixFields));
    EXPECT_EQ(loading.waitForDatabase(), LoadResult::Loaded);
    EXPECT_EQ(document.database.tags.count(), 1);
    loading.finish();
    EXPECT_EQ(slot().registerCount, 3U);
    EXPECT_EQ(slot().tagIndex, 0);
    EXPECT_FALSE(document.hasUnsavedChanges());
}

TEST_F(DocumentLoadingTest, ABadDatabaseIsToldBeforeTheDefinitionIsTouched)
{
    DocumentLoading loading(documentOf("nonsense", lineOfSixFields));
    EXPECT_EQ(loading.waitForDatabase(), LoadResult::BadJson);
    // Whatever the user does before the message is confirmed still counts.
    EXPECT_FALSE(slot().used);
    folder.write("plant.csv", "HOLDING,00010,NONE,INT32,OTHER,changed meanwhile\n");
    loading.finish();
    EXPECT_EQ(slot().tagname.view(), "OTHER");
    EXPECT_EQ(slot().tagIndex, -1);
    EXPECT_FALSE(document.hasUnsavedChanges());
}

TEST_F(DocumentLoadingTest, ADatabaseWithoutTagsKeepsWhatStandsBeforeThem)
{
    DocumentLoading loading(documentOf(R"({"database_groups": [{"flag": "ALM", "mask": 1}],
                                     "structure": [{"lable": "Works", "dbprefix": ""}]})",
                                       lineOfSixFields));
    EXPECT_EQ(loading.waitForDatabase(), LoadResult::DatabaseMissing);
    EXPECT_EQ(document.database.groups.size(), 1U);
    EXPECT_EQ(document.database.structure.size(), 1U);
    loading.finish();
    EXPECT_EQ(slot().registerCount, 1U);
}

TEST_F(DocumentLoadingTest, TwoBadFilesGiveAnEmptyDocument)
{
    DocumentLoading loading(documentOf("", "nonsense"));
    EXPECT_EQ(loading.waitForDatabase(), LoadResult::BadJson);
    loading.finish();
    EXPECT_FALSE(slot().used);
    EXPECT_EQ(document.database.tags.count(), 0);
    EXPECT_FALSE(document.hasUnsavedChanges());
}

TEST_F(DocumentLoadingTest, WithoutAnyFileTheDatabaseIsMissed)
{
    DocumentLoading loading(document);
    EXPECT_EQ(loading.waitForDatabase(), LoadResult::FileNotFound);
    loading.finish();
    EXPECT_FALSE(document.hasUnsavedChanges());
}

TEST_F(DocumentLoadingTest, ADatabaseAloneIsLoaded)
{
    folder.write("plant.json", wholeDatabase);
    DocumentLoading loading(document);
    EXPECT_EQ(loading.waitForDatabase(), LoadResult::Loaded);
    loading.finish();
    EXPECT_FALSE(slot().used);
}

TEST_F(DocumentLoadingTest, WhoeverDoesNotWaitIsWaitedFor)
{
    std::string definition;
    for (int address = 0; address < registersPerSpace; ++address)
        definition += "HOLDING," + std::to_string(address) + ",NONE,INT16,NAME,text,1\n";
    {
        const DocumentLoading loading(documentOf(wholeDatabase, definition));
    }
    // Nobody writes into it any more.
    EXPECT_EQ(document.map.slots(RegisterSpace::Holding)[registersPerSpace - 1].used, true);
}
