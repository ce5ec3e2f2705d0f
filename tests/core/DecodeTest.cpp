#include "text/Decode.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

using namespace std::string_literals;

namespace
{

constexpr const char* replacement = "\xEF\xBF\xBD";

} // namespace

TEST(Decode, PlainAndWellFormedTextsStayAsTheyAre)
{
    EXPECT_EQ(decodeText(""), "");
    EXPECT_EQ(decodeText("Pump\r\n"), "Pump\r\n");
    EXPECT_EQ(decodeText("20 \xC2\xB0"
                         "C \xF0\x9F\x98\x80"),
              "20 \xC2\xB0"
              "C \xF0\x9F\x98\x80");
}

TEST(Decode, TextThatNeedsNoChangeIsNotCopied)
{
    std::string bytes(1000, 'a');
    const char* const place = bytes.data();
    const std::string text = decodeText(std::move(bytes));
    EXPECT_TRUE(text.data() == place);
}

TEST(Decode, MarkOfUtf8IsDropped)
{
    EXPECT_EQ(decodeText("\xEF\xBB\xBF\xC3\xBC"), "\xC3\xBC");
    EXPECT_EQ(decodeText("\xEF\xBB\xBF"), "");
}

TEST(Decode, EachByteThatBelongsToNoCharacterIsReplacedAfterTheMarkOfUtf8)
{
    EXPECT_EQ(decodeText("\xEF\xBB\xBF"
                         "a\xFC"
                         "b"),
              "a"s + replacement + "b");
    EXPECT_EQ(decodeText("\xEF\xBB\xBF\xE2\x82"), replacement + std::string(replacement));
}

TEST(Decode, SingleInvalidByteMakesTheWholeTextLatin1)
{
    EXPECT_EQ(decodeText("\xC3\xBC and \xFC"), "\xC3\x83\xC2\xBC and \xC3\xBC");
    EXPECT_EQ(decodeText("\x80\xFF"), "\xC2\x80\xC3\xBF");
}

TEST(Decode, Latin1TurnsEachByteIntoTheCharacterOfItsNumber)
{
    std::string bytes;
    std::string expected;
    for (int byte = 0; byte < 256; ++byte)
    {
        bytes.push_back(static_cast<char>(byte));
        if (byte >= 0x80)
            expected.push_back(static_cast<char>(0xC0 | byte >> 6));
        expected.push_back(static_cast<char>(byte >= 0x80 ? 0x80 | (byte & 0x3F) : byte));
    }
    EXPECT_EQ(decodeText(bytes), expected);
}

TEST(Decode, Utf16OfBothByteOrders)
{
    EXPECT_EQ(decodeText("\xFF\xFE"
                         "A\0\xFC\0\xAC\x20"s),
              "A\xC3\xBC\xE2\x82\xAC");
    EXPECT_EQ(decodeText("\xFE\xFF\0A\0\xFC\x20\xAC"s), "A\xC3\xBC\xE2\x82\xAC");
}

TEST(Decode, Utf16PairsOfSurrogatesAreOneCharacter)
{
    EXPECT_EQ(decodeText("\xFF\xFE\x3D\xD8\x00\xDE"s), "\xF0\x9F\x98\x80");
    EXPECT_EQ(decodeText("\xFE\xFF\xD8\x3D\xDE\x00"s), "\xF0\x9F\x98\x80");
}

TEST(Decode, Utf16LoneSurrogatesAndAByteLeftOverAreReplaced)
{
    EXPECT_EQ(decodeText("\xFE\xFF\xD8\x3D\0A"s), replacement + "A"s);
    EXPECT_EQ(decodeText("\xFE\xFF\xDE\0\0A"s), replacement + "A"s);
    EXPECT_EQ(decodeText("\xFE\xFF\0A\xD8\x3D"s), "A"s + replacement);
    EXPECT_EQ(decodeText("\xFE\xFF\0A\0"s), "A"s + replacement);
}

TEST(Decode, Utf32OfBothByteOrders)
{
    EXPECT_EQ(decodeText("\xFF\xFE\0\0A\0\0\0\0\xF6\x01\0"s), "A\xF0\x9F\x98\x80");
    EXPECT_EQ(decodeText("\0\0\xFE\xFF\0\0\0A\0\x01\xF6\0"s), "A\xF0\x9F\x98\x80");
}

TEST(Decode, Utf32ValuesThatAreNoCharactersAreReplaced)
{
    EXPECT_EQ(decodeText("\0\0\xFE\xFF\0\0\xD8\0\0\x11\0\0\xFF\xFF\xFF\xFF\0A"s),
              std::string(replacement) + replacement + replacement + replacement);
}
