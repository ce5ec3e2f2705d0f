#include "source/TagDatabaseLoader.h"

#include "tests/core/TempFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using namespace std::string_literals;

namespace
{

/// A loaded file: how that ended, and what there is now.
struct Load
{
    LoadResult result;
    TagDatabase database;
};

Load load(std::string_view bytes)
{
    const TempFolder folder;
    Load load{};
    load.result = loadTagDatabase(folder.write("database.json", bytes), load.database);
    return load;
}

/// A file of one root node and these tags.
std::string withTags(const std::string& tags)
{
    return R"({"structure":[{"lable":"Plant"}],"database":[)" + tags + "]}";
}

Load loadTags(const std::string& tags)
{
    Load tagsOnly = load(withTags(tags));
    EXPECT_EQ(tagsOnly.result, LoadResult::Loaded);
    return tagsOnly;
}

std::string withGroups(const std::string& groups)
{
    return R"({"database_groups":[)" + groups + R"(],"structure":[{"lable":"Plant"}],"database":[]})";
}

std::vector<std::uint32_t> masksOf(const std::string& groups)
{
    std::vector<std::uint32_t> masks;
    for (const TagGroup& group : load(withGroups(groups)).database.groups)
        masks.push_back(group.mask);
    return masks;
}

/// Label, prefix and parent of each node in the order of the tree.
std::vector<std::string> nodesOf(const TagDatabase& database)
{
    std::vector<std::string> nodes;
    for (const StructureNode& node : database.structure)
        nodes.push_back(node.label + "|" + node.dbPrefix + "|" + std::to_string(node.parent));
    return nodes;
}

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

void expectPlant(const Load& load)
{
    EXPECT_EQ(load.result, LoadResult::Loaded);

    const auto& groups = load.database.groups;
    ASSERT_EQ(groups.size(), 2U);
    EXPECT_EQ(groups[0].flag, "ALM");
    EXPECT_EQ(groups[0].type, "x");
    EXPECT_EQ(groups[0].description, "Alarms");
    EXPECT_EQ(groups[0].mask, 1U);
    EXPECT_EQ(groups[1].flag, "TOP");
    EXPECT_EQ(groups[1].mask, 0x80000000U);

    EXPECT_EQ(nodesOf(load.database),
              (std::vector<std::string>{"Plant||-1", "Pumps|PMP|0", "Pump 1|PMP1|1", "Pump 2|PMP2|1", "Tanks|TNK|0"}));

    const TagTable& tags = load.database.tags;
    ASSERT_EQ(tags.count(), 3);
    EXPECT_EQ(tags[0].name.view(), "PMP1_SPEED");
    EXPECT_EQ(tags[0].description.view(), "Speed");
    EXPECT_EQ(tags[0].type, TagType::Numeric);
    EXPECT_EQ(tags[0].size, 4);
    EXPECT_EQ(tags[0].elements, 2);
    EXPECT_EQ(tags[0].attributes, 3);
    EXPECT_EQ(tags[0].groups, 1U);
    EXPECT_EQ(tags[1].type, TagType::String);
    EXPECT_EQ(tags[1].size, 20);
    EXPECT_EQ(tags[2].type, TagType::Integer);
    EXPECT_EQ(tags[2].attributes, -1);
    EXPECT_EQ(tags[2].groups, 0x80000001U);
    EXPECT_EQ(tags.find(InternedText("PMP2_NAME")), 1);
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

TEST(TagDatabaseLoader, StructureThatIsNoArrayOrEmptyHasNoLable)
{
    for (const char* structure : {"[]", "null", "1", "\"lable\"", "{\"lable\":\"x\"}", "[1]", "[null]",
                                  "[[{\"lable\":\"x\"}]]", "[,{\"lable\":\"x\"}]"})
        EXPECT_EQ(load("{\"structure\":"s + structure + "}").result, LoadResult::LableMissing) << structure;
}

TEST(TagDatabaseLoader, LableNeedsNoTextToBeThere)
{
    const Load noText = load(R"({"structure":[{"lable":null}],"database":[]})");
    EXPECT_EQ(noText.result, LoadResult::Loaded);
    EXPECT_EQ(nodesOf(noText.database), std::vector<std::string>{"||-1"});
    EXPECT_EQ(nodesOf(load(R"({"structure":[{"lable":7,"dbprefix":8}],"database":[]})").database),
              std::vector<std::string>{"7|8|-1"});
}

TEST(TagDatabaseLoader, WithoutDatabaseGroupsAndTreeStay)
{
    const Load partial = load(replaced(plant, "\"database\":", "\"Database\":"));
    EXPECT_EQ(partial.result, LoadResult::DatabaseMissing);
    EXPECT_EQ(partial.database.groups.size(), 2U);
    EXPECT_EQ(partial.database.structure.size(), 5U);
    EXPECT_EQ(partial.database.tags.count(), 0);
}

TEST(TagDatabaseLoader, DatabaseThatIsNoArrayHasNoTags)
{
    for (const char* database : {"null", "{}", "5", "[]", "\"x\""})
    {
        const Load noTags = load(R"({"structure":[{"lable":"x"}],"database":)"s + database + "}");
        EXPECT_EQ(noTags.result, LoadResult::Loaded) << database;
        EXPECT_EQ(noTags.database.tags.count(), 0) << database;
    }
}

TEST(TagDatabaseLoader, GroupsAreOptional)
{
    EXPECT_TRUE(loadTags("").database.groups.empty());
    EXPECT_TRUE(load(R"({"database_groups":null,"structure":[{"lable":"x"}],"database":[]})").database.groups.empty());
}

TEST(TagDatabaseLoader, MasksAreHexadecimal)
{
    EXPECT_EQ(
        masksOf(
            R"({"mask":"10"},{"mask":"0x20"},{"mask":"fF"},{"mask":" 4 x"},{"mask":"FFFFFFFFF"},{"mask":"no"},{"mask":""})"),
        (std::vector<std::uint32_t>{0x10, 0x20, 0xFF, 4, 0xFFFFFFFF, 0, 0}));
}

TEST(TagDatabaseLoader, MaskWrittenAsNumberIsReadFromItsDecimalText)
{
    EXPECT_EQ(masksOf(R"({"mask":16},{"mask":200000},{"mask":1.5},{"mask":1e2},{"mask":2e5},{"mask":"1e2"})"),
              (std::vector<std::uint32_t>{0x16, 1, 0x100, 0x1e2}));
}

TEST(TagDatabaseLoader, AbsentMembersOfAGroupAreEmptyAndZero)
{
    const auto groups = load(withGroups(R"({},null,7,{"flag":null,"desc":true,"type":[]})")).database.groups;
    ASSERT_EQ(groups.size(), 4U);
    for (const TagGroup& group : groups)
    {
        EXPECT_EQ(group.flag + group.type + group.description, "");
        EXPECT_EQ(group.mask, 0U);
    }
}

TEST(TagDatabaseLoader, MoreThan32GroupsAreKept)
{
    std::string groups;
    for (int i = 0; i < 40; ++i)
        groups += R"({"mask":"1"},)";
    EXPECT_EQ(masksOf(groups).size(), 40U);
}

TEST(TagDatabaseLoader, OnlyExactlyTheReservedMaskIsLeftOut)
{
    EXPECT_EQ(masksOf(R"({"mask":"200000"},{"mask":"0x200000"},{"mask":"200001"},{"mask":"1200000"})"),
              (std::vector<std::uint32_t>{0x200001, 0x1200000}));

    const Load tags =
        loadTags(R"({"Name":"A","Groups":2097152},{"Name":"B","Groups":2097153},{"Name":"C","Groups":"2097152"},)"
                 R"({"Name":"D","Groups":2097152.5},{"Name":"E","Groups":4297064448},{"Name":"F","Groups":-2097152})");
    ASSERT_EQ(tags.database.tags.count(), 2);
    EXPECT_EQ(tags.database.tags[0].name.view(), "B");
    EXPECT_EQ(tags.database.tags[1].name.view(), "F");
}

TEST(TagDatabaseLoader, UnknownTypeIsLeftAsItWas)
{
    const Load tags =
        loadTags(R"({"Type":"Numeric"},{"Type":"Float"},{"Type":"numeric"},{"Type":1},{},{"Type":"String"})");
    const TagTable& table = tags.database.tags;
    ASSERT_EQ(table.count(), 6);
    EXPECT_EQ(table[0].type, TagType::Numeric);
    for (int i = 1; i < 5; ++i)
        EXPECT_EQ(table[i].type, TagType::Integer) << i;
    EXPECT_EQ(table[5].type, TagType::String);
}

TEST(TagDatabaseLoader, SizeKeepsItsLowEightBits)
{
    const Load tags = loadTags(
        R"({"Size":300},{"Size":255},{"Size":256},{"Size":-1},{"Size":"12"},{"Size":7.9},{"Size":4294967299})");
    const TagTable& table = tags.database.tags;
    const std::vector<int> expected{44, 255, 0, 255, 12, 7, 3};
    ASSERT_EQ(table.count(), 7);
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(table[i].size, expected[static_cast<std::size_t>(i)]) << i;
}

TEST(TagDatabaseLoader, ElementsAreSignedWith32Bits)
{
    const Load tags =
        loadTags(R"({"Elements":2147483647,"Attributes":1},{"Elements":2147483648},{"Elements":4294967295},)"
                 R"({"Elements":4294967298},{"Elements":-3,"Attributes":"-4"},{"Elements":2.9})");
    const TagTable& table = tags.database.tags;
    ASSERT_EQ(table.count(), 6);
    EXPECT_EQ(table[0].elements, 2147483647);
    EXPECT_EQ(table[0].attributes, 1);
    EXPECT_EQ(table[1].elements, -2147483647 - 1);
    EXPECT_EQ(table[2].elements, -1);
    EXPECT_EQ(table[3].elements, 2);
    EXPECT_EQ(table[4].elements, -3);
    EXPECT_EQ(table[4].attributes, -4);
    EXPECT_EQ(table[5].elements, 2);
}

TEST(TagDatabaseLoader, AbsentMembersOfATagAreEmptyAndZero)
{
    const Load tags =
        loadTags(R"({},null,"x",[1],{"Name":null,"Description":false,"Size":{},"Elements":"x","Groups":null})");
    const TagTable& table = tags.database.tags;
    ASSERT_EQ(table.count(), 5);
    for (int i = 0; i < 5; ++i)
    {
        EXPECT_TRUE(table[i].name.empty()) << i;
        EXPECT_TRUE(table[i].description.empty()) << i;
        EXPECT_EQ(table[i].size + table[i].elements, 0) << i;
        EXPECT_EQ(table[i].groups, 0U) << i;
    }
}

TEST(TagDatabaseLoader, NumbersAreTakenAsTheTextOfTheirValue)
{
    const Load tags = loadTags(R"({"Name":4711,"Description":1.50},{"Name":1e2,"Description":"1e2"})");
    const TagTable& table = tags.database.tags;
    ASSERT_EQ(table.count(), 2);
    EXPECT_EQ(table[0].name.view(), "4711");
    EXPECT_EQ(table[0].description.view(), "1.5");
    EXPECT_EQ(table[1].name.view(), "100");
    EXPECT_EQ(table[1].description.view(), "1e2");
}

TEST(TagDatabaseLoader, TabInsideADescriptionIsKept)
{
    const Load tags = loadTags("{\"Name\":\"A\",\"Description\":\"one\ttwo\"},{\"Name\":\"B\"}");
    ASSERT_EQ(tags.database.tags.count(), 2);
    EXPECT_EQ(tags.database.tags[0].description.view(), "one\ttwo");
}

TEST(TagDatabaseLoader, NumericTextCountsAsThatNumber)
{
    const Load tags = loadTags(R"({"Size":"12.9","Elements":"-3","Attributes":"1e2","Groups":" 5 "},)"
                               R"({"Size":"12 characters","Elements":"","Attributes":"0x10","Groups":"many"})");
    const TagTable& table = tags.database.tags;
    ASSERT_EQ(table.count(), 2);
    EXPECT_EQ(table[0].size, 12);
    EXPECT_EQ(table[0].elements, -3);
    EXPECT_EQ(table[0].attributes, 100);
    EXPECT_EQ(table[0].groups, 5U);
    EXPECT_EQ(table[1].size + table[1].elements + table[1].attributes, 0);
    EXPECT_EQ(table[1].groups, 0U);
}

TEST(TagDatabaseLoader, LastMemberOfANameCounts)
{
    const Load twice = load(
        R"({"database":[{"Name":"A"}],"structure":[],"database":[{"Name":"B","Name":"C"}],"structure":[{"lable":"x"}]})");
    ASSERT_EQ(twice.result, LoadResult::Loaded);
    ASSERT_EQ(twice.database.tags.count(), 1);
    EXPECT_EQ(twice.database.tags[0].name.view(), "C");
}

TEST(TagDatabaseLoader, LastListOfANameCountsAlone)
{
    const Load groups = load(R"({"database_groups":[{"flag":"A"}],"database_groups":[{"flag":"B","flag":"C"}]})");
    ASSERT_EQ(groups.database.groups.size(), 1U);
    EXPECT_EQ(groups.database.groups[0].flag, "C");

    EXPECT_TRUE(load(R"({"database_groups":[{"flag":"A"}],"database_groups":null})").database.groups.empty());
    EXPECT_EQ(load(R"({"structure":[{"lable":"x"}],"structure":null})").result, LoadResult::LableMissing);
    EXPECT_EQ(load(R"({"structure":[{"lable":"x"}],"database":[{}],"database":7})").database.tags.count(), 0);

    const Load nodes = load(
        R"({"structure":[{"structure":[{"lable":"gone","structure":[{}]}],"lable":"top","structure":[{"lable":"kept",)"
        R"("structure":[{},{}],"structure":{}}]}],"database":[]})");
    EXPECT_EQ(nodesOf(nodes.database), (std::vector<std::string>{"top||-1", "kept||0"}));
}

TEST(TagDatabaseLoader, LastValueCountsAlsoWhenItIsOfAnotherKind)
{
    const Load tags = loadTags(
        R"({"Name":"A","Type":"String","Size":5,"Groups":2097152,"Name":[],"Type":{},"Size":null,"Groups":true})");
    const TagTable& table = tags.database.tags;
    ASSERT_EQ(table.count(), 1);
    EXPECT_TRUE(table[0].name.empty());
    EXPECT_EQ(table[0].type, TagType::Integer);
    EXPECT_EQ(table[0].size, 0);
    EXPECT_EQ(table[0].groups, 0U);
}

TEST(TagDatabaseLoader, MembersInsideOtherMembersMeanNothing)
{
    const Load nested =
        load(R"({"other":{"database":[{"Name":"no"}],"structure":[{"lable":"no"}]},"more":[[{"database":[]}]],)"
             R"("database_groups":[[{"flag":"no"}],{"desc":{"flag":"no"},"flag":"yes"}],)"
             R"("structure":[{"x":[{"lable":"no"}],"lable":"yes","y":{"lable":"no"}}],)"
             R"("database":[[{"Name":"no"}],{"Size":{"Name":"no"},"Name":"yes","Groups":[{"Name":"no"}]}]})");
    ASSERT_EQ(nested.result, LoadResult::Loaded);
    ASSERT_EQ(nested.database.groups.size(), 2U);
    EXPECT_EQ(nested.database.groups[0].flag, "");
    EXPECT_EQ(nested.database.groups[1].flag, "yes");
    EXPECT_EQ(nodesOf(nested.database), std::vector<std::string>{"yes||-1"});
    ASSERT_EQ(nested.database.tags.count(), 2);
    EXPECT_EQ(nested.database.tags[0].name.view(), "");
    EXPECT_EQ(nested.database.tags[1].name.view(), "yes");
}

TEST(TagDatabaseLoader, MembersMayComeInAnyOrder)
{
    const Load mixed = load(
        R"({"database":[{"Groups":3,"Name":"A","Elements":2}],"structure":[{"structure":[{"dbprefix":"b","lable":"B"}],)"
        R"("lable":"A"}],"database_groups":[{"desc":"d","mask":"1"}]})");
    ASSERT_EQ(mixed.result, LoadResult::Loaded);
    EXPECT_EQ(mixed.database.groups.at(0).mask, 1U);
    EXPECT_EQ(nodesOf(mixed.database), (std::vector<std::string>{"A||-1", "B|b|0"}));
    EXPECT_EQ(mixed.database.tags[0].groups, 3U);
    EXPECT_EQ(mixed.database.tags[0].elements, 2);
}

TEST(TagDatabaseLoader, RootMemberRepeatedAMillionTimesIsReadAtOnce)
{
    for (const char* member : {R"("database":[],)", R"("database":[{}],)", R"("structure":[{}],)"})
    {
        std::string json = "{";
        for (int i = 0; i < 1000000; ++i)
            json += member;
        const Load last = load(json + R"("structure":[{"lable":"Plant"}],"database":[{"Name":"A"}]})");
        EXPECT_EQ(last.result, LoadResult::Loaded);
        ASSERT_EQ(last.database.tags.count(), 1);
        EXPECT_EQ(last.database.tags.find(InternedText("A")), 0);
    }
}

TEST(TagDatabaseLoader, TagsBeyondTheTableAreLeftOut)
{
    std::string tags;
    for (int i = 0; i < 200000; ++i)
        tags += "{\"Name\":\"T" + std::to_string(i) + "\",\"Groups\":" + (i == 0 ? "2097152" : "1") + "},";
    const Load full = loadTags(tags);
    const TagTable& table = full.database.tags;
    ASSERT_EQ(table.count(), tagCapacity);
    EXPECT_EQ(table[0].name.view(), "T1");
    EXPECT_EQ(table[tagCapacity - 1].name.view(), "T65536");
    EXPECT_EQ(table.find(InternedText("T65536")), tagCapacity - 1);
    EXPECT_EQ(table.find(InternedText("T65537")), std::nullopt);
}

TEST(TagDatabaseLoader, LongTextsAreWhole)
{
    std::string text;
    text.resize(10000000, 'x');
    EXPECT_TRUE(loadTags("{\"Description\":\"" + text + "\"}").database.tags[0].description.view() == text);
}

TEST(TagDatabaseLoader, ChildrenThatAreNoArrayAreNone)
{
    const Load tree = load(
        R"({"structure":[{"lable":"a","structure":[{"structure":{"lable":"x"}},7,{"lable":"b","structure":null}]}],"database":[]})");
    EXPECT_EQ(nodesOf(tree.database), (std::vector<std::string>{"a||-1", "||0", "||0", "b||0"}));
}

TEST(TagDatabaseLoader, NodesMoreThanAThousandLevelsDownAreLeftOut)
{
    const auto treeOf = [](int levels)
    {
        std::string json = "{\"database\":[],\"structure\":";
        for (int level = 0; level <= levels; ++level)
            json += "[{\"lable\":\"" + std::to_string(level) + "\",\"structure\":";
        json += "[]";
        for (int level = 0; level <= levels; ++level)
            json += "},{\"lable\":\"next\"}]";
        return load(json + "}").database.structure;
    };
    EXPECT_EQ(treeOf(3).size(), 7U);

    const auto deep = treeOf(5000);
    ASSERT_EQ(deep.size(), 2001U);
    EXPECT_EQ(deep[1000].label, "1000");
    EXPECT_EQ(deep[1000].parent, 999);
    EXPECT_EQ(deep[1001].label, "next");
    EXPECT_EQ(deep[1001].parent, 999);
    EXPECT_EQ(deep[2000].label, "next");
    EXPECT_EQ(deep[2000].parent, 0);
}

TEST(TagDatabaseLoader, StructureNestedAMillionDeepIsCutAndReleased)
{
    std::string json = "{\"database\":[],\"structure\":";
    for (int level = 0; level < 1000000; ++level)
        json += "[{\"lable\":\"\",\"structure\":";
    json += "[]";
    for (int level = 0; level < 1000000; ++level)
        json += "}]";
    const Load deep = load(json + "}");
    EXPECT_EQ(deep.result, LoadResult::Loaded);
    EXPECT_EQ(deep.database.structure.size(), 1001U);
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
