#include "text/Decode.h"

#include "text/Characters.h"
#include "text/Utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

// How the encoding is found, since the files themselves do not say:
//
//   begins with a byte-order mark         that of the mark
//   else, all bytes well-formed UTF-8     UTF-8
//   else                                  ISO 8859-1, in which any bytes are a text
//
// With a mark a wrong byte costs one character. Without one it decides against UTF-8 for the whole file, as files of
// older tools have a single encoding from start to end.

namespace
{

enum class Encoding
{
    Utf8,
    Utf16Little,
    Utf16Big,
    Utf32Little,
    Utf32Big
};

struct Mark
{
    std::string_view bytes;
    Encoding encoding;
};

using namespace std::string_view_literals;

/// Longer marks first: that of UTF-16 begins like that of UTF-32.
constexpr std::array<Mark, 5> marks{{{"\xFF\xFE\0\0"sv, Encoding::Utf32Little},
                                     {"\0\0\xFE\xFF"sv, Encoding::Utf32Big},
                                     {"\xEF\xBB\xBF"sv, Encoding::Utf8},
                                     {"\xFF\xFE"sv, Encoding::Utf16Little},
                                     {"\xFE\xFF"sv, Encoding::Utf16Big}}};

const Mark* markOf(std::string_view bytes)
{
    for (const Mark& mark : marks)
    {
        if (bytes.starts_with(mark.bytes))
            return &mark;
    }
    return nullptr;
}

/// Reads units of fixed width, each stored lowest or highest byte first.
class UnitReader
{
public:
    UnitReader(std::string_view units, std::size_t unitWidth, bool lowestByteFirst)
        : bytes(units), width(unitWidth), lowestFirst(lowestByteFirst)
    {
    }

    /// True while a whole unit is left.
    bool hasUnit() const { return bytes.size() - position >= width; }

    /// True when the bytes left over are too few for a unit.
    bool hasPartOfUnit() const { return position < bytes.size() && !hasUnit(); }

    /// The next unit, which stays the next one.
    std::uint32_t peek() const
    {
        std::uint32_t unit = 0;
        for (std::size_t i = 0; i < width; ++i)
        {
            // From the highest byte down, wherever that stands.
            const std::size_t index = position + (lowestFirst ? width - 1 - i : i);
            unit = unit << 8U | static_cast<unsigned char>(bytes[index]);
        }
        return unit;
    }

    /// The next unit.
    std::uint32_t take()
    {
        const std::uint32_t unit = peek();
        position += width;
        return unit;
    }

private:
    std::string_view bytes;
    std::size_t width;
    bool lowestFirst;
    std::size_t position = 0;
};

std::string decodeUtf8(std::string bytes)
{
    // Most files are in order, and are handed on without a copy.
    if (isValidUtf8(bytes))
        return bytes;
    // The replacement character takes three bytes, so a text full of wrong ones grows beyond this; that is rare.
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t position = 0; position < bytes.size();)
    {
        const Utf8Character character = characterAt(bytes, position);
        appendCharacter(text, character.codePoint);
        position += character.length;
    }
    return text;
}

/// Characters beyond the first 65,536 come as two units. Half a pair that stands alone is not a character,
/// and neither is a byte left over when the file was cut off: each becomes the replacement character.
std::string decodeUtf16(std::string_view bytes, bool lowestByteFirst)
{
    UnitReader units(bytes, 2, lowestByteFirst);
    std::string text;
    text.reserve(bytes.size() / 2);
    while (units.hasUnit())
    {
        std::uint32_t codePoint = units.take();
        // What follows is looked at before it is taken: if it is not a second half, it begins a character of its own.
        if (isHighSurrogate(codePoint) && units.hasUnit() && isLowSurrogate(units.peek()))
            codePoint = characterOfPair(codePoint, units.take());
        appendCharacter(text, codePoint);
    }
    if (units.hasPartOfUnit())
        appendCharacter(text, replacementCharacter);
    return text;
}

std::string decodeUtf32(std::string_view bytes, bool lowestByteFirst)
{
    UnitReader units(bytes, 4, lowestByteFirst);
    std::string text;
    text.reserve(bytes.size() / 4);
    while (units.hasUnit())
        appendCharacter(text, units.take());
    if (units.hasPartOfUnit())
        appendCharacter(text, replacementCharacter);
    return text;
}

/// ISO 8859-1 numbers its characters as Unicode does, so each byte is one of the first 256.
std::string decodeLatin1(std::string_view bytes)
{
    // The length is counted first, and each byte written in place: at 200 MB of arbitrary bytes this takes a third of
    // the time of appending character by character.
    const auto isHigh = [](char c) { return static_cast<unsigned char>(c) >= 0x80; };
    const auto highBytes = static_cast<std::size_t>(std::ranges::count_if(bytes, isHigh));
    std::string text(bytes.size() + highBytes, '\0');
    char* place = text.data();
    for (const char c : bytes)
    {
        if (isHigh(c))
        {
            // Two bytes, 110000xx and 10xxxxxx, are enough for characters below 256.
            const unsigned byte = static_cast<unsigned char>(c);
            *place++ = static_cast<char>(0xC0U | byte >> 6U);
            *place++ = static_cast<char>(0x80U | (byte & 0x3FU));
        }
        else
        {
            *place++ = c;
        }
    }
    return text;
}

} // namespace

bool hasByteOrderMark(std::string_view bytes)
{
    return markOf(bytes) != nullptr;
}

std::string decodeText(std::string bytes)
{
    const Mark* const mark = markOf(bytes);
    if (mark == nullptr)
    {
        // Texts of western Europe hardly ever look like UTF-8 by chance, so one wrong byte is proof of the older
        // encoding.
        if (!isValidUtf8(bytes))
            return decodeLatin1(bytes);
        return bytes;
    }

    // The mark is not part of the text: as a character it would be the first one of a key or a keyword.
    bytes.erase(0, mark->bytes.size());
    switch (mark->encoding)
    {
    case Encoding::Utf8:
        return decodeUtf8(std::move(bytes));
    case Encoding::Utf16Little:
        return decodeUtf16(bytes, true);
    case Encoding::Utf16Big:
        return decodeUtf16(bytes, false);
    case Encoding::Utf32Little:
        return decodeUtf32(bytes, true);
    case Encoding::Utf32Big:
        return decodeUtf32(bytes, false);
    }
    return bytes;
}
