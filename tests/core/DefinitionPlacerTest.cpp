#include "map/DefinitionPlacer.h"

#include "tests/core/Chance.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <string>

namespace
{

/// Places the object of a line slot by slot over what is there, without a thought for how long that takes.
void placeLiterally(RegisterMap& map, const DefinitionObject& object)
{
    const InternedText tagname(object.tagname);
    const InternedText description(object.description);
    const std::int64_t end = std::min<std::int64_t>(std::int64_t{object.start} + object.count, registersPerSpace);
    for (std::int64_t address = std::max(object.start, 0); address < end; ++address)
    {
        RegisterEntry& slot = map.slots(object.space)[static_cast<int>(address)];
        slot.used = true;
        slot.startAddress = static_cast<std::uint32_t>(object.start);
        slot.address = static_cast<std::uint32_t>(address);
        slot.type = object.type;
        slot.registerCount = static_cast<std::uint32_t>(object.count);
        slot.write = object.write;
        slot.tagname = tagname;
        slot.description = description;
        slot.SwapBytes = slot.SwapBytes || object.SwapBytes;
        slot.SwapWords = slot.SwapWords || object.SwapWords;
        slot.SwapLongs = slot.SwapLongs || object.SwapLongs;
        slot.locked = object.locked;
    }
}

/// The same lines placed one by one and all together.
class DefinitionPlacing : public testing::Test
{
protected:
    void add(const DefinitionFields& fields)
    {
        const LineMeaning meaning = placer.parseDefinitionLine(fields);
        if (const auto* const object = std::get_if<DefinitionObject>(&meaning))
            placeLiterally(oneByOne, *object);
    }

    /// A text that lasts until the objects are placed.
    std::string_view lasting(std::string text) { return texts.emplace_back(std::move(text)); }

    void expectSame()
    {
        placer.placeAll();
        texts.clear();
        for (const RegisterSpace space : allSpaces)
        {
            for (int address = 0; address < registersPerSpace; ++address)
            {
                ASSERT_EQ(together.slots(space)[address], oneByOne.slots(space)[address])
                    << spaceDisplayName(static_cast<int>(space)) << ' ' << address;
            }
        }
    }

    /// Something in the slots that the lines find there.
    void scribble(Chance& chance)
    {
        for (int i = 0; i < 100; ++i)
        {
            RegisterEntry entry;
            entry.typeValid = chance.happens(50);
            entry.writeValid = chance.happens(50);
            entry.tagIndex = chance.pick(-1, 5);
            entry.SwapBytes = chance.happens(20);
            entry.SwapLongs = chance.happens(20);
            entry.locked = chance.happens(20);
            const int address = chance.oneOf({chance.pick(0, 60), chance.pick(65500, 65535)});
            const auto space = static_cast<RegisterSpace>(chance.pick(0, 3));
            const int count = chance.pick(1, 8);
            oneByOne.placeObject(space, address, entry, count);
            together.placeObject(space, address, entry, count);
        }
    }

    std::deque<std::string> texts;
    RegisterMap oneByOne;
    RegisterMap together;
    DefinitionPlacer placer{together};
};

} // namespace

TEST_F(DefinitionPlacing, NothingTakenLeavesTheMap)
{
    expectSame();
    EXPECT_FALSE(together.isModified());
}

TEST_F(DefinitionPlacing, LaterObjectsWinAndFlagsStick)
{
    add({"HOLDING", "10", "BYTES", "DOUBLE", "A", "a", "", "LOCKED", ""});
    add({"HOLDING", "12", "WORDS", "DOUBLE", "B.1", "b", "", "UNLOCKED", ""});
    add({"HOLDING", "11", "NONE", "INT32", "C", "c", "", "UNLOCKED", ""});
    expectSame();
    const RegisterSlots& slots = together.slots(RegisterSpace::Holding);
    EXPECT_EQ(slots[10].tagname.view(), "A");
    EXPECT_EQ(slots[12].tagname.view(), "C");
    EXPECT_TRUE(slots[12].SwapBytes && slots[12].SwapWords);
    EXPECT_EQ(slots[13].tagname.view(), "B");
}

TEST_F(DefinitionPlacing, PlacesAgainAfterPlacing)
{
    add({"COIL", "10", "BYTES", "DOUBLE", "A", "a", "", "LOCKED", ""});
    expectSame();
    add({"COIL", "11", "LONGS", "INT32", "B", "b", "", "UNLOCKED", ""});
    expectSame();
    EXPECT_EQ(together.slots(RegisterSpace::Coil)[11].tagname.view(), "B");
}

TEST_F(DefinitionPlacing, AnyLinesGiveTheSlotsOfPlacingThemOneByOne)
{
    for (std::uint32_t seed = 0; seed < 60; ++seed)
    {
        SCOPED_TRACE(seed);
        Chance chance(seed);
        oneByOne.initialise();
        together.initialise();
        scribble(chance);
        const int lines = chance.oneOf({3, 30, 200});
        for (int line = 0; line < lines; ++line)
        {
            const int address = chance.oneOf({chance.pick(-20, 60), chance.pick(65480, 65560), chance.pick(0, 65535),
                                              chance.oneOf({-2147483647 - 1, 2147483647, -65536})});
            const int count = chance.oneOf({chance.pick(-1, 6), chance.pick(1, 60), chance.pick(1, 6),
                                            chance.oneOf({65535, 65536, 2147483647, 1})});
            const std::string addressText = std::to_string(address);
            const std::string countText = std::to_string(count);
            const auto tagname = lasting("T" + std::to_string(line) + chance.oneOf({"", "", ".1", ".2"}));
            const auto description = lasting(std::to_string(chance.pick(0, 9)));
            add({chance.oneOf({"HOLDING", "HOLDING", "COIL", "INPUT", "STATUS", "NOWHERE"}), addressText,
                 chance.oneOf({"NONE", "NONE", "BYTES", "WORDS", "LONGS", "BYTES+LONGS", "BYTES+WORDS+LONGS"}),
                 chance.oneOf({"INT16", "DOUBLE", "STRING", "STRING"}), tagname, description, countText,
                 chance.oneOf({"LOCKED", "UNLOCKED"}), "OK"});
        }
        expectSame();
        if (HasFatalFailure())
            return;
    }
}

TEST_F(DefinitionPlacing, MoreObjectsThanSlotsKeepTheirOrder)
{
    Chance chance(11);
    for (int line = 0; line < 600'000; ++line)
    {
        const std::string address = std::to_string(chance.pick(-5, 65540));
        const auto tagname = lasting(std::to_string(line % 1000));
        add({chance.oneOf({"HOLDING", "COIL", "INPUT", "STATUS"}), address, line % 5000 == 0 ? "WORDS" : "NONE",
             chance.oneOf({"INT16", "INT32", "DOUBLE"}), tagname, "", "", "UNLOCKED", ""});
    }
    expectSame();
}
