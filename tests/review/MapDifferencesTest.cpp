#include "review/MapDifferences.h"

#include "map/DefinitionReader.h"
#include "tests/review/ReviewedText.h"

#include <gtest/gtest.h>

namespace
{

RegisterMap mapOf(const std::vector<std::string>& lines)
{
    RegisterMap map;
    readDefinition(fileOf(lines), map, smallDatabase());
    return map;
}

std::string placeOf(const MapObject& object)
{
    return std::string(spaceKeyword(object.space)) + std::to_string(object.head.address);
}

/// "WHERE NAME: changes", with "!" behind it when it breaks and "L" when it was locked.
std::string described(const ObjectChange& change)
{
    std::string text = placeOf(change.object()) + ' ' + std::string(change.object().head.tagname.view()) + ':';
    for (const ChangeKind kind : change.kinds)
        text += ' ' + std::string(changeName(kind));
    if (change.before && change.after && placeOf(*change.before) != placeOf(*change.after))
        text += " from " + placeOf(*change.before);
    return text + (change.isBreaking() ? " !" : "") + (change.breaksLock() ? " L" : "");
}

std::vector<std::string> differences(const std::vector<std::string>& before, const std::vector<std::string>& after)
{
    std::vector<std::string> words;
    for (const ObjectChange& change : mapDifferences(mapOf(before), mapOf(after)))
        words.push_back(described(change));
    return words;
}

const std::string speed = "HOLDING,00100,NONE,FLOAT,SPEED,Speed,2,UNLOCKED,OK";

} // namespace

TEST(MapDifferences, AreNoneBetweenMapsOfTheSameObjects)
{
    EXPECT_EQ(differences({speed, "COIL,1,NONE,INT16,RUN,,1,UNLOCKED,OK"},
                          {"COIL,00001,NONE,INT16,RUN,,1,UNLOCKED,ERROR", "HOLDING,100,NONE,FLOAT,SPEED,Speed"}),
              Said());
}

TEST(MapDifferences, NameAddedAndRemovedObjects)
{
    EXPECT_EQ(differences({speed}, {}), Said{"HOLDING100 SPEED: removed !"});
    EXPECT_EQ(differences({}, {speed}), Said{"HOLDING100 SPEED: added"});
}

TEST(MapDifferences, TakeAnotherTagnameForAnotherObjectAndNameTheRemovedOneFirst)
{
    EXPECT_EQ(differences({speed}, {"HOLDING,00100,NONE,FLOAT,FLOW,Speed,2,UNLOCKED,OK"}),
              (Said{"HOLDING100 SPEED: removed !", "HOLDING100 FLOW: added"}));
}

TEST(MapDifferences, NameAnObjectThatMoved)
{
    EXPECT_EQ(differences({speed}, {"HOLDING,00120,NONE,FLOAT,SPEED,Speed,2,UNLOCKED,OK"}),
              Said{"HOLDING120 SPEED: moved from HOLDING100 !"});
    EXPECT_EQ(differences({speed}, {"INPUT,00100,NONE,FLOAT,SPEED,Speed,2,UNLOCKED,OK"}),
              Said{"INPUT100 SPEED: moved from HOLDING100 !"});
}

TEST(MapDifferences, TakeAnotherTypeElsewhereForAnotherObject)
{
    EXPECT_EQ(differences({speed}, {"HOLDING,00120,NONE,INT32,SPEED,Speed,2,UNLOCKED,OK"}),
              (Said{"HOLDING100 SPEED: removed !", "HOLDING120 SPEED: added"}));
}

TEST(MapDifferences, NameEachChangeOfAnObjectThatStayed)
{
    const auto changed = [](const std::string& line) { return differences({speed}, {line}); };
    EXPECT_EQ(changed("HOLDING,00100,NONE,INT32,SPEED,Speed,2,UNLOCKED,OK"), Said{"HOLDING100 SPEED: type !"});
    EXPECT_EQ(changed("HOLDING,00100,NONE,DOUBLE,SPEED,Speed,4,UNLOCKED,OK"), Said{"HOLDING100 SPEED: type size !"});
    EXPECT_EQ(changed("HOLDING,00100,WORDS,FLOAT,SPEED,Speed,2,UNLOCKED,OK"), Said{"HOLDING100 SPEED: byte order !"});
    EXPECT_EQ(changed("HOLDING,00100,NONE,FLOAT,SPEED.1,Speed,2,UNLOCKED,OK"), Said{"HOLDING100 SPEED: write !"});
    EXPECT_EQ(changed("HOLDING,00100,NONE,FLOAT,SPEED,Of pump 1,2,UNLOCKED,OK"), Said{"HOLDING100 SPEED: description"});
    EXPECT_EQ(changed("HOLDING,00100,NONE,FLOAT,SPEED,Speed,2,LOCKED,OK"), Said{"HOLDING100 SPEED: lock"});
}

TEST(MapDifferences, NameAResizedText)
{
    EXPECT_EQ(differences({"HOLDING,1,NONE,STRING,NAME,,4"}, {"HOLDING,1,NONE,STRING,NAME,,5"}),
              Said{"HOLDING1 NAME: size !"});
}

TEST(MapDifferences, NameAllChangesOfAnObjectThatMoved)
{
    EXPECT_EQ(differences({speed}, {"HOLDING,00120,LONGS,FLOAT,SPEED.1,Words,2,LOCKED,OK"}),
              Said{"HOLDING120 SPEED: moved byte order write description lock from HOLDING100 !"});
}

TEST(MapDifferences, MarkEveryChangeOfALockedObject)
{
    const std::string locked = "HOLDING,00100,NONE,FLOAT,SPEED,Speed,2,LOCKED,OK";
    EXPECT_EQ(differences({locked}, {speed}), Said{"HOLDING100 SPEED: lock L"});
    EXPECT_EQ(differences({locked}, {}), Said{"HOLDING100 SPEED: removed ! L"});
    EXPECT_EQ(differences({locked}, {"HOLDING,00100,NONE,FLOAT,SPEED,Words,2,LOCKED,OK"}),
              Said{"HOLDING100 SPEED: description L"});
    EXPECT_EQ(differences({locked}, {"HOLDING,00102,NONE,FLOAT,SPEED,Speed,2,LOCKED,OK"}),
              Said{"HOLDING102 SPEED: moved from HOLDING100 ! L"});
}

TEST(MapDifferences, KeepAnObjectWhereItIsWhenAnotherOfItsNameGoes)
{
    EXPECT_EQ(differences({"HOLDING,1,NONE,INT16,A,,1", "HOLDING,2,NONE,INT16,A,,1"}, {"HOLDING,2,NONE,INT16,A,,1"}),
              Said{"HOLDING1 A: removed !"});
}

TEST(MapDifferences, PairObjectsOfOneNameInTheOrderOfTheMapInsideASpaceFirst)
{
    EXPECT_EQ(differences({"INPUT,1,NONE,INT16,A,,1", "HOLDING,1,NONE,INT16,A,,1", "HOLDING,2,NONE,INT16,A,,1"},
                          {"HOLDING,11,NONE,INT16,A,,1", "HOLDING,12,NONE,INT16,A,,1", "COIL,5,NONE,INT16,A,,1"}),
              (Said{"COIL5 A: moved from INPUT1 !", "HOLDING11 A: moved from HOLDING1 !",
                    "HOLDING12 A: moved from HOLDING2 !"}));
}

TEST(MapDifferences, LookAtObjectsThatAFileHasALineForAlone)
{
    // The second line takes the head of the first, whose other register stays without one.
    EXPECT_EQ(differences({"HOLDING,00100,NONE,FLOAT,A,,2,UNLOCKED,OK", "HOLDING,00100,NONE,INT16,B,,1,UNLOCKED,OK"},
                          {"HOLDING,00100,NONE,INT16,B,,1,UNLOCKED,OK"}),
              Said());
}

TEST(MapDifferences, NameAnObjectWhoseRegistersAnotherOneTook)
{
    const std::string name = "HOLDING,00100,NONE,STRING,NAME,Name,6,LOCKED,OK";
    const std::string run = "HOLDING,00103,NONE,INT16,RUN,Run,1,UNLOCKED,OK";
    EXPECT_EQ(differences({name}, {name, run}), (Said{"HOLDING100 NAME: overwritten ! L", "HOLDING103 RUN: added"}));
    EXPECT_EQ(differences({name, run}, {name}), (Said{"HOLDING100 NAME: uncovered ! L", "HOLDING103 RUN: removed !"}));
    EXPECT_EQ(differences({name, run}, {name, run}), Said());
    const std::vector<ObjectChange> changes = mapDifferences(mapOf({name}), mapOf({name, run}));
    ASSERT_EQ(changes.size(), 2U);
    EXPECT_EQ(changes[0].overwrittenAt, 103U);
}

TEST(MapDifferences, NameBothWhenAnotherRegisterOfAnObjectIsTaken)
{
    const std::string name = "HOLDING,00100,NONE,STRING,NAME,Name,6,UNLOCKED,OK";
    EXPECT_EQ(differences({name, "HOLDING,103,NONE,INT16,RUN,,1"}, {name, "HOLDING,102,NONE,INT16,RUN,,1"}),
              (Said{"HOLDING100 NAME: overwritten uncovered !", "HOLDING102 RUN: moved from HOLDING103 !"}));
}

TEST(MapDifferences, TakeAShorterTextForResizedAloneAndAnOverwrittenOneElsewhereForBoth)
{
    EXPECT_EQ(differences({"HOLDING,1,NONE,STRING,NAME,,6"}, {"HOLDING,1,NONE,STRING,NAME,,4"}),
              Said{"HOLDING1 NAME: size !"});
    EXPECT_EQ(differences({"HOLDING,1,NONE,FLOAT,A,,2"}, {"HOLDING,11,NONE,FLOAT,A,,2", "HOLDING,12,NONE,INT16,B,,1"}),
              (Said{"HOLDING11 A: moved overwritten from HOLDING1 !", "HOLDING12 B: added"}));
}

TEST(MapDifferences, AreNoneWhereTheEndOfTheSpaceCutsTheSameObjectOff)
{
    const std::string last = "HOLDING,65534,NONE,DOUBLE,A,,4,UNLOCKED,OK";
    EXPECT_EQ(differences({last}, {last}), Said());
}
