#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The character that stands where a malformed unit was read.
constexpr char32_t replacementCharacter = 0xFFFD;

/// What stands at one place of a UTF-8 text.
struct Utf8Character
{
    char32_t codePoint = replacementCharacter; ///< the replacement character when malformed
    std::size_t length = 1;                    ///< bytes taken, 1..4; when malformed, the one that begins no character
    bool valid = false;                        ///< false for what no well-formed text holds
};

/// Number of bytes below 0x80 that stand together.
/// @param start  0..text.size(), where the run begins
/// @return length of the run, 0 when a byte from 0x80 up stands at `start`
std::size_t asciiRunLength(std::string_view text, std::size_t start);

/// Reads one character. Overlong forms, surrogates and values above U+10FFFF are malformed.
/// @param position  0..text.size() - 1
Utf8Character characterAt(std::string_view text, std::size_t position);

/// True when every byte belongs to a well-formed character.
bool isValidUtf8(std::string_view text);

/// True for a byte that continues a character, false for one that begins one.
constexpr bool isContinuationByte(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Appends one character. A surrogate or a value above U+10FFFF is appended as the replacement character.
void appendCharacter(std::string& text, char32_t codePoint);
