#include "source/TagFilter.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <string>
#include <vector>

namespace
{

using Tags = std::vector<int>;

void addTag(TagTable& table, std::string_view name, std::string_view description, std::uint32_t groups = 0)
{
    TagRecord record;
    record.name = InternedText(name);
    record.description = InternedText(description);
    record.groups = groups;
    table.append(record);
}

Tags shown(const TagTable& table, const TagFilter& filter)
{
    std::optional<TagSearchIndex> index;
    return filterTags(table, index, filter);
}

/// Pumps and tanks, in groups 1, 2 and 4.
TagTable plant()
{
    TagTable table;
    addTag(table, "PMP1_TEMP", "Bearing", 1);
    addTag(table, "PMP1_SPEED", "Temperature of motor", 2);
    addTag(table, "pmp2_tamper", "Lid", 3);
    addTag(table, "TNK1_LEVEL", "", 0);
    addTag(table, "", "No name, tEmp", 7);
    return table;
}

} // namespace

TEST(TagFilter, EmptyFilterShowsEveryTag)
{
    EXPECT_EQ(shown(plant(), {}), (Tags{0, 1, 2, 3, 4}));
    EXPECT_EQ(shown(TagTable(), {}), Tags{});
}

TEST(TagFilter, WithoutATextNoIndexIsNeeded)
{
    std::optional<TagSearchIndex> index;
    EXPECT_EQ(filterTags(plant(), index, {"PMP1", "", {}}), (Tags{0, 1}));
    EXPECT_EQ(filterTags(plant(), index, {"", "", {1}}), (Tags{0, 2, 4}));
    EXPECT_FALSE(index);
}

TEST(TagFilter, TextIsFoundInNameOrDescriptionInAnyLetterCase)
{
    EXPECT_EQ(shown(plant(), {"", "temp", {}}), (Tags{0, 1, 4}));
    EXPECT_EQ(shown(plant(), {"", "TEMP", {}}), (Tags{0, 1, 4}));
    EXPECT_EQ(shown(plant(), {"", "Lid", {}}), Tags{2});
    EXPECT_EQ(shown(plant(), {"", "nothing of the kind", {}}), Tags{});
}

TEST(TagFilter, WildcardsInTheTextCount)
{
    EXPECT_EQ(shown(plant(), {"", "t?mp", {}}), (Tags{0, 1, 2, 4}));
    EXPECT_EQ(shown(plant(), {"", "p*1*e", {}}), (Tags{0, 1}));
    EXPECT_EQ(shown(plant(), {"", "*", {}}), (Tags{0, 1, 2, 3, 4}));
    EXPECT_EQ(shown(plant(), {"", "?????????????", {}}), (Tags{1, 4}));
}

TEST(TagFilter, QuestionMarkNeedsACharacterSomewhere)
{
    TagTable table;
    addTag(table, "", "");
    addTag(table, "", "x");
    addTag(table, "x", "");
    EXPECT_EQ(shown(table, {"", "?", {}}), (Tags{1, 2}));
    EXPECT_EQ(shown(table, {"", "??", {}}), Tags{});
    EXPECT_EQ(shown(table, {"", "", {}}), (Tags{0, 1, 2}));
}

TEST(TagFilter, MatchNeverSpansTwoTexts)
{
    TagTable table;
    addTag(table, "AB", "CD");
    addTag(table, "EF", "GH");
    for (const char* text : {"BC", "DE", "FG", "B?C", "B*C", "A*D", "D*E", "A*H", "???"})
        EXPECT_EQ(shown(table, {"", text, {}}), Tags{}) << text;
}

TEST(TagFilter, LettersOutsideAsciiHaveNoCaseEither)
{
    TagTable table;
    addTag(table, "A",
           "Au\xC3\x9F"
           "enf\xC3\xBC"
           "hler");
    EXPECT_EQ(shown(table, {"",
                            "F\xC3\x9C"
                            "H",
                            {}}),
              Tags{0});
    EXPECT_EQ(shown(table, {"",
                            "au\xC3\x9F"
                            "EN",
                            {}}),
              Tags{0});
    EXPECT_EQ(shown(table, {"", "f?h", {}}), Tags{0});
    EXPECT_EQ(shown(table, {"", "f??h", {}}), Tags{});
}

TEST(TagFilter, PrefixIsTheBeginningOfTheNameInItsLetterCase)
{
    EXPECT_EQ(shown(plant(), {"PMP", "", {}}), (Tags{0, 1}));
    EXPECT_EQ(shown(plant(), {"pmp2_tamper", "", {}}), Tags{2});
    EXPECT_EQ(shown(plant(), {"pmp2_tamper!", "", {}}), Tags{});
    EXPECT_EQ(shown(plant(), {"MP1", "", {}}), Tags{});
}

TEST(TagFilter, EveryCheckedGroupIsNeeded)
{
    EXPECT_EQ(shown(plant(), {"", "", {1}}), (Tags{0, 2, 4}));
    EXPECT_EQ(shown(plant(), {"", "", {1, 2}}), (Tags{2, 4}));
    EXPECT_EQ(shown(plant(), {"", "", {1, 2, 4}}), Tags{4});
    EXPECT_EQ(shown(plant(), {"", "", {6}}), (Tags{1, 2, 4}));
    EXPECT_EQ(shown(plant(), {"", "", {0x80000000}}), Tags{});
}

TEST(TagFilter, CheckedGroupWithoutBitsHidesEverything)
{
    EXPECT_EQ(shown(plant(), {"", "", {0}}), Tags{});
    EXPECT_EQ(shown(plant(), {"", "", {1, 0}}), Tags{});
}

TEST(TagFilter, AllConditionsHaveToHold)
{
    EXPECT_EQ(shown(plant(), {"PMP1", "temp", {}}), (Tags{0, 1}));
    EXPECT_EQ(shown(plant(), {"PMP1", "temp", {2}}), Tags{1});
    EXPECT_EQ(shown(plant(), {"TNK", "temp", {}}), Tags{});
}

TEST(TagFilter, IndexHoldsTheTextsInUpperCase)
{
    const TagTable table = plant();
    const TagSearchIndex index(table);
    EXPECT_EQ(index.name(2), "PMP2_TAMPER");
    EXPECT_EQ(index.description(2), "LID");
    EXPECT_EQ(index.name(4), "");
}

TEST(TagFilter, FullTableAgreesWithATagByTagTest)
{
    std::mt19937 random(7);
    const auto randomText = [&random]
    {
        std::string text(random() % 6, ' ');
        for (char& c : text)
            c = "abAB"[random() % 4];
        return text;
    };
    TagTable table;
    for (int i = 0; i < tagCapacity; ++i)
        addTag(table, randomText(), randomText(), static_cast<std::uint32_t>(random() % 8));
    std::optional<TagSearchIndex> index;

    const auto upper = [](std::string_view text)
    {
        std::string result(text);
        for (char& c : result)
            c = c == 'a' ? 'A' : c == 'b' ? 'B' : c;
        return result;
    };
    for (const TagFilter& filter :
         {TagFilter{"a", "BA", {1}}, TagFilter{"", "bbab", {}}, TagFilter{"B", "a", {1, 2}}, TagFilter{"", "a", {}}})
    {
        Tags expected;
        for (int i = 0; i < table.count(); ++i)
        {
            bool pass = table[i].name.view().starts_with(filter.prefix);
            for (const std::uint32_t mask : filter.checkedMasks)
                pass = pass && (table[i].groups & mask) != 0;
            const std::string wanted = upper(filter.text);
            pass = pass && (upper(table[i].name.view()).find(wanted) != std::string::npos ||
                            upper(table[i].description.view()).find(wanted) != std::string::npos);
            if (pass)
                expected.push_back(i);
        }
        EXPECT_FALSE(expected.empty());
        EXPECT_EQ(filterTags(table, index, filter), expected) << filter.prefix << " " << filter.text;
    }
}
