#pragma once

#include <string>
#include <string_view>

/// The words of definition files for the byte order of an object.

constexpr std::string_view swapBytesWord = "BYTES";
constexpr std::string_view swapWordsWord = "WORDS";
constexpr std::string_view swapLongsWord = "LONGS";

/// Stands where none of the three is set.
constexpr std::string_view noSwapWord = "NONE";

/// What joins the words where several are set.
constexpr char swapWordJoint = '+';

/// Appends a byte order as files write it, such as "BYTES+WORDS" or "NONE".
/// @tparam Swapped  what has the three flags: a slot of the map, or the object of a line
template <class Swapped>
void appendByteOrder(std::string& text, const Swapped& swapped)
{
    const std::size_t begin = text.size();
    const auto append = [&](bool set, std::string_view word)
    {
        if (!set)
            return;
        if (text.size() > begin)
            text += swapWordJoint;
        text += word;
    };
    append(swapped.SwapBytes, swapBytesWord);
    append(swapped.SwapWords, swapWordsWord);
    append(swapped.SwapLongs, swapLongsWord);
    if (text.size() == begin)
        text += noSwapWord;
}

/// A byte order as files write it.
template <class Swapped>
std::string byteOrderText(const Swapped& swapped)
{
    std::string text;
    appendByteOrder(text, swapped);
    return text;
}
