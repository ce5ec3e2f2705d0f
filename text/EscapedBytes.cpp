#include "text/EscapedBytes.h"

#include "text/Utf8.h"

// A file name that is not UTF-8 on its way through the toolkit and back:
//
//   name on the disk     T  E4  N  K                 E4 alone is not UTF-8
//   escaped              T  U+10FFE4  N  K           well-formed, so the toolkit takes it
//   unescaped            T  E4  N  K                 the same file is opened
//
// The characters used are for private use and hardly ever mean anything to anyone. Should a name hold one all the same,
// its own four bytes are escaped, so that no two names become one.

namespace
{

/// The character for byte 0x80; bytes below it are ASCII and never need one.
constexpr char32_t firstEscape = 0x10FF80;
constexpr char32_t lastEscape = 0x10FFFF;

bool isEscape(const Utf8Character& character)
{
    return character.valid && character.codePoint >= firstEscape && character.codePoint <= lastEscape;
}

} // namespace

std::string escapeBytes(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t position = 0; position < bytes.size();)
    {
        const Utf8Character character = characterAt(bytes, position);
        const std::string_view itsBytes = bytes.substr(position, character.length);
        if (character.valid && !isEscape(character))
        {
            text += itsBytes;
        }
        else
        {
            for (const char byte : itsBytes)
                appendCharacter(text, firstEscape + static_cast<unsigned char>(byte) - 0x80U);
        }
        position += character.length;
    }
    return text;
}

std::string unescapeBytes(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t position = 0; position < text.size();)
    {
        const Utf8Character character = characterAt(text, position);
        if (isEscape(character))
            bytes += static_cast<char>(0x80U + (character.codePoint - firstEscape));
        else
            bytes += text.substr(position, character.length);
        position += character.length;
    }
    return bytes;
}
