#include "map/RegisterEntry.h"

#include <gtest/gtest.h>

#include <string>

TEST(FreeSlot, HasTheValuesOfASlotThatBelongsToNothing)
{
    const RegisterEntry slot = freeSlot(65535);
    EXPECT_FALSE(slot.used);
    EXPECT_FALSE(slot.locked);
    EXPECT_EQ(slot.startAddress, 65535U);
    EXPECT_EQ(slot.address, 65535U);
    EXPECT_EQ(slot.type, DataType::Int16);
    EXPECT_TRUE(slot.typeValid);
    EXPECT_EQ(slot.registerCount, 1U);
    EXPECT_FALSE(slot.SwapBytes);
    EXPECT_FALSE(slot.SwapWords);
    EXPECT_FALSE(slot.SwapLongs);
    EXPECT_FALSE(slot.write);
    EXPECT_TRUE(slot.writeValid);
    EXPECT_EQ(slot.tagIndex, -1);
    EXPECT_EQ(slot.tagname.view(), "");
    EXPECT_EQ(slot.description.view(), "");
    EXPECT_TRUE(isHead(slot));
}

TEST(RegisterEntry, HeadIsTheSlotWhoseAddressIsTheObjects)
{
    RegisterEntry slot;
    slot.startAddress = 10;
    slot.address = 10;
    EXPECT_TRUE(isHead(slot));
    slot.address = 11;
    EXPECT_FALSE(isHead(slot));
}

TEST(RegisterEntry, ByteOrderHasACharacterForEachFlag)
{
    const auto characters = [](bool bytes, bool words, bool longs)
    {
        RegisterEntry slot;
        slot.SwapBytes = bytes;
        slot.SwapWords = words;
        slot.SwapLongs = longs;
        const auto text = byteOrderCharacters(slot);
        return std::string(text.begin(), text.end());
    };
    EXPECT_EQ(characters(false, false, false), "---");
    EXPECT_EQ(characters(true, false, false), "B--");
    EXPECT_EQ(characters(false, true, false), "-W-");
    EXPECT_EQ(characters(false, false, true), "--L");
    EXPECT_EQ(characters(true, true, true), "BWL");
}
