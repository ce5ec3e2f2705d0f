#include "map/RegisterMap.h"

#include <gtest/gtest.h>

namespace
{

/// A way to change one field of a slot.
struct FieldChange
{
    const char* field;
    void (*change)(RegisterEntry& slot);
};

constexpr FieldChange fieldChanges[] = {
    {"used", [](RegisterEntry& slot) { slot.used = !slot.used; }},
    {"locked", [](RegisterEntry& slot) { slot.locked = !slot.locked; }},
    {"startAddress", [](RegisterEntry& slot) { ++slot.startAddress; }},
    {"address", [](RegisterEntry& slot) { ++slot.address; }},
    {"type", [](RegisterEntry& slot) { slot.type = DataType::Float; }},
    {"typeValid", [](RegisterEntry& slot) { slot.typeValid = !slot.typeValid; }},
    {"registerCount", [](RegisterEntry& slot) { ++slot.registerCount; }},
    {"SwapBytes", [](RegisterEntry& slot) { slot.SwapBytes = !slot.SwapBytes; }},
    {"SwapWords", [](RegisterEntry& slot) { slot.SwapWords = !slot.SwapWords; }},
    {"SwapLongs", [](RegisterEntry& slot) { slot.SwapLongs = !slot.SwapLongs; }},
    {"write", [](RegisterEntry& slot) { slot.write = !slot.write; }},
    {"writeValid", [](RegisterEntry& slot) { slot.writeValid = !slot.writeValid; }},
    {"tagIndex", [](RegisterEntry& slot) { ++slot.tagIndex; }},
    {"tagname", [](RegisterEntry& slot) { slot.tagname = InternedText("another name"); }},
    {"description", [](RegisterEntry& slot) { slot.description = InternedText("another text"); }},
};

/// A map with something in it, remembered as saved.
std::unique_ptr<RegisterMap> savedMap()
{
    auto map = std::make_unique<RegisterMap>();
    RegisterEntry entry;
    entry.registerCount = 3;
    entry.type = DataType::String;
    entry.tagname = InternedText("Tank1Level");
    entry.description = InternedText("Level of tank 1");
    map->placeObject(RegisterSpace::Coil, 0, entry, 3);
    map->placeObject(RegisterSpace::Holding, 65533, entry, 3);
    map->takeSnapshot();
    return map;
}

} // namespace

TEST(MapSnapshot, EverySingleFieldCounts)
{
    const auto map = savedMap();
    for (const RegisterSpace space : allSpaces)
    {
        for (const int address : {0, 2, 30'000, 65'535})
        {
            for (const FieldChange& change : fieldChanges)
            {
                RegisterEntry& slot = map->slots(space)[address];
                const RegisterEntry saved = slot;
                ASSERT_FALSE(map->isModified());
                change.change(slot);
                EXPECT_TRUE(map->isModified()) << change.field << " at " << address;
                slot = saved;
            }
        }
    }
    EXPECT_FALSE(map->isModified());
}

TEST(MapSnapshot, TextThatIsTypedAgainIsNoChange)
{
    const auto map = savedMap();
    RegisterEntry& slot = map->slots(RegisterSpace::Coil)[0];
    slot.tagname = InternedText("Tank2Level");
    EXPECT_TRUE(map->isModified());
    std::string again = "Tank";
    again += "1Level";
    slot.tagname = InternedText(again);
    EXPECT_FALSE(map->isModified());
}

TEST(MapSnapshot, PlacingAndErasingLeavesNoChange)
{
    const auto map = savedMap();
    RegisterEntry entry = map->slots(RegisterSpace::Coil)[0];
    map->placeObject(RegisterSpace::Holding, 100, entry, 3);
    EXPECT_TRUE(map->isModified());
    EXPECT_TRUE(map->eraseObject(RegisterSpace::Holding, 100));
    EXPECT_FALSE(map->isModified());
}

TEST(MapSnapshot, ErasingAndPlacingAgainLeavesNoChange)
{
    const auto map = savedMap();
    map->currentSpace = RegisterSpace::Coil;
    const RegisterEntry entry = map->slots(RegisterSpace::Coil)[0];
    EXPECT_TRUE(map->eraseObject(RegisterSpace::Coil, 0));
    EXPECT_TRUE(map->isModified());
    map->placeObject(RegisterSpace::Coil, 0, entry, 3);
    EXPECT_FALSE(map->isModified());
}

TEST(MapSnapshot, ViewAndClipboardAreNoPartOfIt)
{
    const auto map = savedMap();
    map->currentSpace = RegisterSpace::Status;
    map->viewMode = ViewMode::All;
    map->errorCount = 9;
    map->clipboard.emplace_back();
    EXPECT_FALSE(map->isModified());
}

TEST(MapSnapshot, TakingItAgainMakesThePresentStateTheSavedOne)
{
    const auto map = savedMap();
    RegisterEntry& slot = map->slots(RegisterSpace::Status)[65535];
    slot.locked = true;
    EXPECT_TRUE(map->isModified());
    map->takeSnapshot();
    EXPECT_FALSE(map->isModified());
    slot.locked = false;
    EXPECT_TRUE(map->isModified());
}

TEST(MapSnapshot, IsACopyThatLaterChangesDoNotReach)
{
    const auto map = savedMap();
    map->slots(RegisterSpace::Coil)[0].description = InternedText("changed");
    map->slots(RegisterSpace::Coil)[1].description = InternedText("changed");
    EXPECT_TRUE(map->isModified());
    map->slots(RegisterSpace::Coil)[0].description = InternedText("Level of tank 1");
    EXPECT_TRUE(map->isModified());
    map->slots(RegisterSpace::Coil)[1].description = InternedText("Level of tank 1");
    EXPECT_FALSE(map->isModified());
}
