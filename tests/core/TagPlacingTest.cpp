#include "map/TagPlacing.h"

#include "map/Clipboard.h"
#include "tests/core/TagBuilder.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

constexpr auto unknownType = static_cast<TagType>(7);

/// Copies all of the given tags, in their order.
std::vector<RegisterEntry> copyOf(const std::vector<TagRecord>& tags, const DefaultByteOrder& byteOrder = {})
{
    TagTable table;
    std::vector<int> indices;
    for (const TagRecord& tag : tags)
    {
        indices.push_back(table.count());
        table.append(tag);
    }
    return copySourceTags(table, indices, byteOrder);
}

std::vector<std::uint32_t> placesOf(const std::vector<RegisterEntry>& registers)
{
    std::vector<std::uint32_t> places;
    places.reserve(registers.size());
    for (const RegisterEntry& entry : registers)
        places.push_back(entry.address);
    return places;
}

} // namespace

TEST(TagPlacing, EachTypeBecomesItsObject)
{
    const auto registers =
        copyOf({tagOf("I", TagType::Integer), tagOf("N", TagType::Numeric), tagOf("S", TagType::String, 5)});
    ASSERT_EQ(placesOf(registers), (std::vector<std::uint32_t>{0, 0, 1, 0, 1, 2}));
    EXPECT_EQ(registers[0].type, DataType::Int16);
    EXPECT_EQ(registers[0].registerCount, 1U);
    EXPECT_EQ(registers[2].type, DataType::Float);
    EXPECT_EQ(registers[2].registerCount, 2U);
    EXPECT_EQ(registers[5].type, DataType::String);
    EXPECT_EQ(registers[5].registerCount, 3U);
}

TEST(TagPlacing, RegistersCarryTheTagWholeAndValid)
{
    TagRecord tag = tagOf("Plant.Pump", TagType::Integer, 4);
    tag.description = InternedText("speed {rpm}");
    RegisterEntry expected;
    expected.used = true;
    expected.tagIndex = 1;
    expected.tagname = tag.name;
    expected.description = tag.description;
    EXPECT_EQ(copyOf({tagOf("first", TagType::Numeric), tag}).back(), expected);
}

TEST(TagPlacing, StringOfNoCharactersAddsNothing)
{
    EXPECT_TRUE(copyOf({tagOf("S", TagType::String, 0)}).empty());
    EXPECT_EQ(copyOf({tagOf("S", TagType::String, 0), tagOf("I", TagType::Integer)}).size(), 1U);
}

TEST(TagPlacing, LongestStringTakes128Registers)
{
    const auto registers = copyOf({tagOf("S", TagType::String, 255)});
    ASSERT_EQ(registers.size(), 128U);
    EXPECT_EQ(registers.back().address, 127U);
    EXPECT_EQ(registers.back().startAddress, 0U);
    EXPECT_EQ(registers.back().registerCount, 128U);
}

TEST(TagPlacing, SwapFlagsBytesAndWordsApplyToFloatsOnly)
{
    const auto registers =
        copyOf({tagOf("I", TagType::Integer), tagOf("N", TagType::Numeric), tagOf("S", TagType::String, 2)},
               DefaultByteOrder::fromSwapFlags(6));
    ASSERT_EQ(registers.size(), 4U);
    EXPECT_EQ(byteOrderCharacters(registers[0]), (std::array{'-', '-', '-'}));
    EXPECT_EQ(byteOrderCharacters(registers[1]), (std::array{'B', 'W', '-'}));
    EXPECT_EQ(byteOrderCharacters(registers[2]), (std::array{'B', 'W', '-'}));
    EXPECT_EQ(byteOrderCharacters(registers[3]), (std::array{'-', '-', '-'}));
}

TEST(TagPlacing, SwapFlagLongsReachesFloatsUnfiltered)
{
    const auto registers = copyOf({tagOf("N", TagType::Numeric)}, DefaultByteOrder::fromSwapFlags(8));
    EXPECT_EQ(byteOrderCharacters(registers.at(0)), (std::array{'-', '-', 'L'}));
}

TEST(TagPlacing, IntegersTakeTheirOwnThreeFlags)
{
    DefaultByteOrder byteOrder;
    byteOrder.intSwapBytes = true;
    byteOrder.intSwapLongs = true;
    const auto registers = copyOf({tagOf("I", TagType::Integer), tagOf("N", TagType::Numeric)}, byteOrder);
    EXPECT_EQ(byteOrderCharacters(registers.at(0)), (std::array{'B', '-', 'L'}));
    EXPECT_EQ(byteOrderCharacters(registers.at(1)), (std::array{'-', '-', '-'}));
}

TEST(TagPlacing, OnlyBitsOneToThreeOfTheSwapFlagsCount)
{
    EXPECT_EQ(DefaultByteOrder::fromSwapFlags(0), DefaultByteOrder());
    EXPECT_EQ(DefaultByteOrder::fromSwapFlags(1), DefaultByteOrder());
    EXPECT_EQ(DefaultByteOrder::fromSwapFlags(0x7FFFFFF1), DefaultByteOrder());
    const DefaultByteOrder all = DefaultByteOrder::fromSwapFlags(-1);
    EXPECT_TRUE(all.floatSwapBytes && all.floatSwapWords && all.floatSwapLongs);
    EXPECT_FALSE(all.intSwapBytes || all.intSwapWords || all.intSwapLongs);
}

TEST(TagPlacing, OrderOfTheListIsKeptAndInvalidIndicesArePassedOver)
{
    TagTable table;
    table.append(tagOf("A", TagType::Integer));
    table.append(tagOf("B", TagType::Integer));
    const std::vector<int> indices{1, -1, 0, 2, 65'536, std::numeric_limits<int>::min(), 1};
    const auto registers = copySourceTags(table, indices, {});
    ASSERT_EQ(registers.size(), 3U);
    EXPECT_EQ(registers[0].tagname.view(), "B");
    EXPECT_EQ(registers[1].tagname.view(), "A");
    EXPECT_EQ(registers[2].tagname.view(), "B");
}

TEST(TagPlacing, NothingListedGivesNothing)
{
    EXPECT_TRUE(copyOf({}).empty());
}

TEST(TagPlacing, UnknownTypeIsTakenAsTheTagBeforeIt)
{
    const auto registers = copyOf({tagOf("N", TagType::Numeric), tagOf("U", unknownType, 9), tagOf("V", unknownType)},
                                  DefaultByteOrder::fromSwapFlags(2));
    ASSERT_EQ(placesOf(registers), (std::vector<std::uint32_t>{0, 1, 0, 1, 0, 1}));
    EXPECT_EQ(registers[5].type, DataType::Float);
    EXPECT_TRUE(registers[5].SwapBytes);
    EXPECT_EQ(registers[5].tagname.view(), "V");
    EXPECT_EQ(registers[5].tagIndex, 2);
}

TEST(TagPlacing, UnknownTypeFirstIsTakenAsAnInteger)
{
    DefaultByteOrder byteOrder = DefaultByteOrder::fromSwapFlags(4);
    byteOrder.intSwapBytes = true;
    const auto registers = copyOf({tagOf("U", unknownType, 9)}, byteOrder);
    ASSERT_EQ(registers.size(), 1U);
    EXPECT_EQ(registers[0].type, DataType::Int16);
    EXPECT_EQ(byteOrderCharacters(registers[0]), (std::array{'B', '-', '-'}));
}

TEST(TagPlacing, UnknownTypeTakesOverAStringOfNoRegistersToo)
{
    EXPECT_TRUE(copyOf({tagOf("S", TagType::String, 0), tagOf("U", unknownType)}).empty());
    EXPECT_EQ(copyOf({tagOf("S", TagType::String, 3), tagOf("U", unknownType)}).size(), 4U);
}

TEST(TagPlacing, PassedOverTagsAreNotTakenOver)
{
    TagTable table;
    table.append(tagOf("U", unknownType));
    table.append(tagOf("N", TagType::Numeric));
    const auto registers = copySourceTags(table, std::vector{-1, 0, 1}, {});
    EXPECT_EQ(placesOf(registers), (std::vector<std::uint32_t>{0, 0, 1}));
}

TEST(TagPlacing, NoMoreRegistersAreMadeThanTheClipboardKeeps)
{
    const std::vector<TagRecord> tags(600, tagOf("S", TagType::String, 255));
    EXPECT_EQ(copyOf(tags).size(), clipboardCapacity);
}
