#include "map/TagnameReplace.h"

#include "tests/core/MapBuilder.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

/// A space whose slots from 10 on are INT16 objects of the given names.
std::unique_ptr<RegisterSlots> named(const std::vector<std::string>& names)
{
    auto slots = drawnSpace(0, "");
    int address = 10;
    for (const std::string& name : names)
        place(*slots, address++, registerOf(name, 1));
    return slots;
}

std::string renamed(const std::string& name, std::string_view find, std::string_view replacement)
{
    const auto slots = named({name});
    EXPECT_TRUE(replaceInTagnames(*slots, std::vector{10}, find, replacement));
    return std::string((*slots)[10].tagname.view());
}

std::string_view nameAt(const RegisterSlots& slots, int address)
{
    return slots[address].tagname.view();
}

} // namespace

TEST(TagnameReplace, MatchesAnywhereAndOften)
{
    EXPECT_EQ(renamed("PLC1_SPEED", "PLC1_", "PLC2_"), "PLC2_SPEED");
    EXPECT_EQ(renamed("XPLC1_PLC1_A", "PLC1_", "PLC2_"), "XPLC2_PLC2_A");
}

TEST(TagnameReplace, LetterCaseCounts)
{
    EXPECT_EQ(renamed("Alarm", "a", "p"), "Alprm");
}

TEST(TagnameReplace, OccurrencesDoNotOverlapAndAreNotLookedAtAgain)
{
    EXPECT_EQ(renamed("AAAA", "AA", "A"), "AA");
    EXPECT_EQ(renamed("AAA", "AA", "B"), "BA");
}

TEST(TagnameReplace, ReplacementHoldingTheFindTextDoesNotGrowForEver)
{
    EXPECT_EQ(renamed("X1X", "X", "XX"), "XX1XX");
}

TEST(TagnameReplace, EmptyReplacementRemoves)
{
    EXPECT_EQ(renamed("A_B_C", "_", ""), "ABC");
    EXPECT_EQ(renamed("___", "_", ""), "");
}

TEST(TagnameReplace, NothingToFindLeavesTheName)
{
    EXPECT_EQ(renamed("Pump", "", "x"), "Pump");
    EXPECT_EQ(renamed("Pump", "Pumps", "x"), "Pump");
    EXPECT_EQ(renamed("", "a", "x"), "");
}

TEST(TagnameReplace, ListedTagnamesAreRenamed)
{
    const auto slots = named({"PLC1_SPEED", "XPLC1_PLC1_A", "PLC1_B"});
    replaceInTagnames(*slots, std::vector{10, 11}, "PLC1_", "PLC2_");
    EXPECT_EQ(nameAt(*slots, 10), "PLC2_SPEED");
    EXPECT_EQ(nameAt(*slots, 11), "XPLC2_PLC2_A");
    EXPECT_EQ(nameAt(*slots, 12), "PLC1_B");
}

TEST(TagnameReplace, OnlyTheTagnameChanges)
{
    const auto slots = named({"about"});
    RegisterEntry expected = (*slots)[10];
    expected.tagname = InternedText("abort");
    replaceInTagnames(*slots, std::vector{10}, "u", "r");
    EXPECT_EQ((*slots)[10], expected);
}

TEST(TagnameReplace, HeadListedAloneLeavesItsContinuationSlots)
{
    const auto slots = drawnSpace(10, "AA");
    replaceInTagnames(*slots, std::vector{10}, "A", "B");
    EXPECT_EQ(nameAt(*slots, 10), "B");
    EXPECT_EQ(nameAt(*slots, 11), "A");
}

TEST(TagnameReplace, LockedSlotKeepsItsNameWhileOthersChange)
{
    const auto slots = drawnSpace(10, "AaA");
    replaceInTagnames(*slots, std::vector{10, 11, 12}, "A", "B");
    EXPECT_EQ(nameAt(*slots, 10), "B");
    EXPECT_EQ(nameAt(*slots, 11), "A");
    EXPECT_EQ(nameAt(*slots, 12), "B");
}

TEST(TagnameReplace, FreeSlotsWithOldTextChangeToo)
{
    const auto slots = drawnSpace(10, "A.");
    (*slots)[10].used = false;
    replaceInTagnames(*slots, std::vector{10, 11}, "A", "B");
    EXPECT_EQ(nameAt(*slots, 10), "B");
    EXPECT_EQ((*slots)[11], freeSlot(11));
}

TEST(TagnameReplace, EmptyFindTextChangesNothing)
{
    const auto slots = drawnSpace(10, "AB.");
    replaceInTagnames(*slots, std::vector{10, 11, 12}, "", "X");
    EXPECT_TRUE(looksLike(*slots, 10, "AB."));
}

TEST(TagnameReplace, AddressesOutsideTheSpaceArePassedOver)
{
    const auto slots = drawnSpace(65'535, "A");
    const std::vector<int> addresses{-1, 65'536, std::numeric_limits<int>::max(), std::numeric_limits<int>::min(),
                                     65'535};
    replaceInTagnames(*slots, addresses, "A", "B");
    EXPECT_EQ(nameAt(*slots, 65'535), "B");
}

TEST(TagnameReplace, NeighboursOfOneNameAndOthersInBetweenAllComeOutRight)
{
    const auto slots = named({"A1", "A1", "B", "A1", "", "A1", "A2", "A2"});
    replaceInTagnames(*slots, std::vector{10, 11, 12, 13, 14, 15, 16, 17}, "A", "C");
    const std::vector<std::string> expected{"C1", "C1", "B", "C1", "", "C1", "C2", "C2"};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(nameAt(*slots, 10 + i), expected[static_cast<std::size_t>(i)]);
}

TEST(TagnameReplace, NameMayBecomeEmpty)
{
    const auto slots = drawnSpace(10, "A");
    replaceInTagnames(*slots, std::vector{10}, "A", "");
    EXPECT_TRUE((*slots)[10].tagname.empty());
}

TEST(TagnameReplace, TextBeyondAsciiIsTakenAsItIs)
{
    const auto slots = named({"Kühler_Öl"});
    replaceInTagnames(*slots, std::vector{10}, "ü", "ue");
    EXPECT_EQ(nameAt(*slots, 10), "Kuehler_Öl");
}

TEST(TagnameReplace, SlotListedAgainIsRenamedOnce)
{
    const auto slots = named({"A", "A"});
    replaceInTagnames(*slots, std::vector{10, 11, 11, 10, 10}, "A", "AA");
    EXPECT_EQ(nameAt(*slots, 10), "AA");
    EXPECT_EQ(nameAt(*slots, 11), "AA");
}

TEST(TagnameReplace, EveryOneOfManyDifferentNamesIsRenamed)
{
    constexpr int count = 1000;
    std::vector<std::string> names;
    std::vector<int> addresses;
    for (int i = 0; i < count; ++i)
    {
        names.push_back("PUMP" + std::to_string(i));
        addresses.push_back(10 + i);
    }
    const auto slots = named(names);
    replaceInTagnames(*slots, addresses, "PUMP", "FAN");
    for (int i = 0; i < count; ++i)
        EXPECT_EQ(nameAt(*slots, 10 + i), "FAN" + std::to_string(i));
}
