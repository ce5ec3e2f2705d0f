#include "tests/core/DatabaseFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace std::string_literals;

namespace
{

const std::string plant = R"({
 "database_groups": [
  {"mask": "1", "flag": "ALM", "type": "x", "desc": "Alarms"},
  {"mask": "200000", "flag": "RES", "type": "y", "desc": "Reserved"},
  {"mask": "80000000", "flag": "TOP", "type": "z", "desc": "Topmost"}
 ],
 "structure": [
  {"lable": "Plant", "dbprefix": "", "structure": [
   {"lable": "Pumps", "dbprefix": "PMP", "structure": [
    {"lable": "Pump 1", "dbprefix": "PMP1"},
    {"lable": "Pump 2", "dbprefix": "PMP2"}
   ]},
   {"lable": "Tanks", "dbprefix": "TNK"}
  ]},
  {"lable": "Second", "dbprefix": "2"}
 ],
 "database": [
  {"Name": "PMP1_SPEED", "Description": "Speed", "Type": "Numeric", "Size": 4, "Elements": 2, "Attributes": 3, "Groups": 1},
  {"Name": "PMP2_NAME", "Description": "Name", "Type": "String", "Size": 20, "Elements": 1, "Attributes": 0, "Groups": 0},
  {"Name": "TNK_LEVEL", "Description": "Level", "Type": "Integer", "Size": 2, "Elements": 1, "Attributes": -1, "Groups": 2147483649}
 ]
}
)";

/// Flag, type, description and mask of each group.
std::vector<std::string> groupsOf(const TagDatabase& database)
{
    std::vector<std::string> groups;
    for (const TagGroup& group : database.groups)
        groups.push_back(group.flag + "|" + group.type + "|" + group.description + "|" + std::to_string(group.mask));
    return groups;
}

/// Name, description, type code, size, elements, attributes and groups of each tag.
std::vector<std::string> tagsOf(const TagDatabase& database)
{
    std::vector<std::string> tags;
    for (int index = 0; index < database.tags.count(); ++index)
    {
        const TagRecord& tag = database.tags[index];
        std::string text = std::string(tag.name.view()) + "|" + std::string(tag.description.view());
        for (const std::int64_t number :
             {std::int64_t{static_cast<int>(tag.type)}, std::int64_t{tag.size}, std::int64_t{tag.elements},
              std::int64_t{tag.attributes}, std::int64_t{tag.groups}})
            text += "|" + std::to_string(number);
        tags.push_back(text);
    }
    return tags;
}

void expectPlant(const Load& load)
{
    using Texts = std::vector<std::string>;
    EXPECT_EQ(load.result, LoadResult::Loaded);
    EXPECT_EQ(groupsOf(load.database), (Texts{"ALM|x|Alarms|1", "TOP|z|Topmost|2147483648"}));
    EXPECT_EQ(nodesOf(load.database),
              (Texts{"Plant||-1", "Pumps|PMP|0", "Pump 1|PMP1|1", "Pump 2|PMP2|1", "Tanks|TNK|0"}));
    EXPECT_EQ(tagsOf(load.database), (Texts{"PMP1_SPEED|Speed|1|4|2|3|1", "PMP2_NAME|Name|2|20|1|0|0",
                                            "TNK_LEVEL|Level|0|2|1|-1|2147483649"}));
    EXPECT_EQ(load.database.tags.find(InternedText("PMP2_NAME")), 1);
}

void expectNothing(const TagDatabase& database)
{
    EXPECT_TRUE(database.groups.empty());
    EXPECT_TRUE(database.structure.empty());
    EXPECT_EQ(database.tags.count(), 0);
}

std::string withoutLineBreaks(std::string text)
{
    std::erase(text, '\n');
    return text;
}

std::string replaced(std::string text, std::string_view from, std::string_view to)
{
    for (std::size_t place = text.find(from); place != std::string::npos; place = text.find(from, place + to.size()))
        text.replace(place, from.size(), to);
    return text;
}

/// The ASCII text in units of 16 bits.
std::string utf16(std::string_view text, bool lowestByteFirst)
{
    std::string bytes = lowestByteFirst ? "\xFF\xFE" : "\xFE\xFF";
    for (const char c : text)
    {
        if (!lowestByteFirst)
            bytes += '\0';
        bytes += c;
        if (lowestByteFirst)
            bytes += '\0';
    }
    return bytes;
}

} // namespace

TEST(TagDatabaseLoader, MessagesAreExact)
{
    EXPECT_EQ(loadMessage(LoadResult::Loaded), "");
    EXPECT_EQ(loadMessage(LoadResult::FileNotFound), "Input file not found\n");
    EXPECT_EQ(loadMessage(LoadResult::BadJson), "Bad JSON format\n");
    EXPECT_EQ(loadMessage(LoadResult::StructureMissing), "[structure] key missing from JSON file\n");
    EXPECT_EQ(loadMessage(LoadResult::LableMissing), "[lable] key missing from JSON file\n");
    EXPECT_EQ(loadMessage(LoadResult::DatabaseMissing), "[database] key missing from JSON file\n");
}

TEST(TagDatabaseLoader, TakesGroupsStructureAndTags)
{
    expectPlant(load(plant));
}

TEST(TagDatabaseLoader, LineBreaksMakeNoDifference)
{
    expectPlant(load(withoutLineBreaks(plant)));
    expectPlant(load(replaced(plant, "\n", "\r\n")));
    expectPlant(load(replaced(plant, "\n", "\r")));
    expectPlant(load(replaced(plant, "Speed", "Spe\ned")));
}

TEST(TagDatabaseLoader, EveryEncodingGivesTheSame)
{
    expectPlant(load("\xEF\xBB\xBF" + plant));
    expectPlant(load(utf16(plant, true)));
    expectPlant(load(utf16(plant, false)));
}

TEST(TagDatabaseLoader, TextsOfUtf8AndLatin1ComeOutAsUtf8)
{
    EXPECT_EQ(loadTags("{\"Description\":\"20 \xC2\xB0"
                       "C\"}")
                  .database.tags[0]
                  .description.view(),
              "20 \xC2\xB0"
              "C");
    EXPECT_EQ(loadTags("{\"Description\":\"20 \xB0"
                       "C\"}")
                  .database.tags[0]
                  .description.view(),
              "20 \xC2\xB0"
              "C");
}

TEST(TagDatabaseLoader, ToleratedFormsAreTaken)
{
    expectPlant(load("/* made by a tool */" + replaced(plant, "}\n ]", "},\n ]")));
    expectPlant(load(replaced(plant, "\"Speed\"", "\"Sp\" /**/ \"eed\"")));
}

TEST(TagDatabaseLoader, MissingFileIsNotFound)
{
    const TempFolder folder;
    for (const auto& path :
         {folder / "missing.json", folder.path(), folder.write("file", "x") / "below", std::filesystem::path()})
    {
        TagDatabase database;
        EXPECT_EQ(loadTagDatabase(path, database), LoadResult::FileNotFound) << path;
        expectNothing(database);
    }
}

TEST(TagDatabaseLoader, FilesThatAreNoJsonLeaveNothing)
{
    for (const std::string& bytes : {""s, "\n"s, std::string(100000, '\0'), "\xEF\xBB\xBF"s, "\xFF\xFE"s, "hello"s,
                                     "1"s, plant + "x", replaced(plant, "]", "}"), "<?xml version=\"1.0\"?>"s})
    {
        const Load bad = load(bytes);
        EXPECT_EQ(bad.result, LoadResult::BadJson) << bytes.substr(0, 20);
        expectNothing(bad.database);
    }
}

TEST(TagDatabaseLoader, FileCutOffAnywhereLeavesNothing)
{
    const std::string whole = R"({"database_groups":[{"mask":"1"}],"structure":[{"lable":"P","structure":[{},]}],)"
                              R"("database":[{"Name":"A\u00fc","Size":1.5e1,"Groups":0}]/**/})";
    ASSERT_EQ(load(whole).result, LoadResult::Loaded);
    const TempFolder folder;
    TagDatabase database;
    for (std::size_t length = 0; length < whole.size(); ++length)
    {
        const auto path = folder.write("cut.json", std::string_view(whole).substr(0, length));
        ASSERT_EQ(loadTagDatabase(path, database), LoadResult::BadJson) << length;
        expectNothing(database);
    }
}

TEST(TagDatabaseLoader, FailureToReadLeavesWhatWasLoadedBefore)
{
    const TempFolder folder;
    TagDatabase database;
    ASSERT_EQ(loadTagDatabase(folder.write("good.json", plant), database), LoadResult::Loaded);
    EXPECT_EQ(loadTagDatabase(folder / "missing.json", database), LoadResult::FileNotFound);
    EXPECT_EQ(loadTagDatabase(folder.write("bad.json", "{"), database), LoadResult::BadJson);
    EXPECT_EQ(database.groups.size(), 2U);
    EXPECT_EQ(database.structure.size(), 5U);
    EXPECT_EQ(database.tags.count(), 3);
}

TEST(TagDatabaseLoader, LoadingAgainStartsAfresh)
{
    const TempFolder folder;
    TagDatabase database;
    ASSERT_EQ(loadTagDatabase(folder.write("plant.json", plant), database), LoadResult::Loaded);
    ASSERT_EQ(loadTagDatabase(folder.write("small.json", withTags(R"({"Name":"A","Type":"?"})")), database),
              LoadResult::Loaded);
    EXPECT_TRUE(database.groups.empty());
    EXPECT_EQ(nodesOf(database), std::vector<std::string>{"Plant||-1"});
    ASSERT_EQ(database.tags.count(), 1);
    EXPECT_EQ(database.tags[0].name.view(), "A");
    EXPECT_EQ(database.tags[0].type, TagType::Integer);
    EXPECT_EQ(database.tags.find(InternedText("PMP1_SPEED")), std::nullopt);
}

TEST(TagDatabaseLoader, WithoutStructureTheGroupsStay)
{
    const Load partial =
        load(replaced(plant, "\"structure\": [\n  {\"lable\": \"Plant\"", "\"Structure\": [\n  {\"lable\": \"Plant\""));
    EXPECT_EQ(partial.result, LoadResult::StructureMissing);
    EXPECT_EQ(partial.database.groups.size(), 2U);
    EXPECT_TRUE(partial.database.structure.empty());
    EXPECT_EQ(partial.database.tags.count(), 0);
}

TEST(TagDatabaseLoader, RootThatIsAnArrayHasNoStructure)
{
    EXPECT_EQ(load("[]").result, LoadResult::StructureMissing);
    EXPECT_EQ(load("[" + plant + "]").result, LoadResult::StructureMissing);
    EXPECT_EQ(load("{}").result, LoadResult::StructureMissing);
}

TEST(TagDatabaseLoader, WithoutLableTheGroupsStay)
{
    const Load partial = load(replaced(plant, "{\"lable\": \"Plant\"", "{\"label\": \"Plant\""));
    EXPECT_EQ(partial.result, LoadResult::LableMissing);
    EXPECT_EQ(partial.database.groups.size(), 2U);
    EXPECT_TRUE(partial.database.structure.empty());
    EXPECT_EQ(partial.database.tags.count(), 0);
}

TEST(TagDatabaseLoader, WithoutDatabaseGroupsAndTreeStay)
{
    const Load partial = load(replaced(plant, "\"database\":", "\"Database\":"));
    EXPECT_EQ(partial.result, LoadResult::DatabaseMissing);
    EXPECT_EQ(partial.database.groups.size(), 2U);
    EXPECT_EQ(partial.database.structure.size(), 5U);
    EXPECT_EQ(partial.database.tags.count(), 0);
}

TEST(TagDatabaseLoader, HugeFileOfGarbageIsBad)
{
    const TempFolder folder;
    const auto path = folder.write("garbage", "{\"structure\":[\xFF");
    {
        std::string block(1 << 20, '\0');
        for (std::size_t i = 0; i < block.size(); ++i)
            block[i] = static_cast<char>(i * 2654435761U >> 13U);
        std::ofstream file(path, std::ios::binary | std::ios::app);
        for (int i = 0; i < 200; ++i)
            file.write(block.data(), static_cast<std::streamsize>(block.size()));
    }
    ASSERT_GT(std::filesystem::file_size(path), 200U << 20U);
    TagDatabase database;
    EXPECT_EQ(loadTagDatabase(path, database), LoadResult::BadJson);
    expectNothing(database);
}
