#include "json/JsonNumber.h"

#include "text/Characters.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

// Numbers of the files serve two ends. As a text (a mask, a name that somebody wrote without quotes) they have to look
// as a person would write them: `decimalText`. As a count or a set of bits only their low 32 bits are kept:
// `wholeNumberBits`. Both stay exact for whole numbers of any length, which a floating-point number is up to 2^53 only,
// and take the way over one just for numbers with a fraction or an exponent.

namespace
{

bool take(std::string_view& text, char c)
{
    if (!text.starts_with(c))
        return false;
    text.remove_prefix(1);
    return true;
}

std::string_view takeDigits(std::string_view& text)
{
    const char* const end = std::find_if_not(text.data(), text.data() + text.size(), isDigit);
    const std::string_view taken(text.data(), end);
    text.remove_prefix(taken.size());
    return taken;
}

/// Takes an exponent with its letter, if there is one.
/// @return false when the letter stands without digits
bool takeExponent(std::string_view& text)
{
    if (!take(text, 'e') && !take(text, 'E'))
        return true;
    if (!take(text, '-'))
        take(text, '+');
    return !takeDigits(text).empty();
}

/// The value of digits and nothing else, modulo two to the power of 32.
std::optional<std::uint32_t> lowBitsOfDigits(std::string_view text)
{
    if (text.empty())
        return std::nullopt;
    // Arithmetic without sign wraps, so what is kept are the low bits of the exact value, however long it is.
    std::uint32_t bits = 0;
    for (const char c : text)
    {
        if (!isDigit(c))
            return std::nullopt;
        bits = bits * 10U + static_cast<std::uint32_t>(c - '0');
    }
    return bits;
}

/// Reads all of a number without a sign.
std::optional<double> unsignedValue(std::string_view text)
{
    // The library would also take "inf", "nan" and a minus. A number that begins with its point is taken: a text is
    // read here too, which need not be a number of JSON.
    if (text.empty() || (text.front() != '.' && !isDigit(text.front())))
        return std::nullopt;
    // In the "C" locale whatever the user's language, which std::strtod would follow.
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return value;
}

std::uint32_t lowBits(double value)
{
    // Taken modulo first: a larger value must not be converted, which is undefined.
    constexpr double twoToThe32 = 4294967296.0;
    return static_cast<std::uint32_t>(std::fmod(std::trunc(value), twoToThe32));
}

} // namespace

bool isJsonNumber(std::string_view text)
{
    take(text, '-');
    const std::string_view whole = takeDigits(text);
    // Zeros in front are refused, as the standard does: C would take 010 for eight.
    if (whole.empty() || (whole.size() > 1 && whole.front() == '0'))
        return false;
    if (take(text, '.') && takeDigits(text).empty())
        return false;
    // An exponent may have leading zeros: "1e05" is a number.
    return takeExponent(text) && text.empty();
}

std::string decimalText(std::string_view number)
{
    std::string_view magnitude = number;
    const bool negative = take(magnitude, '-');
    if (magnitude == "0")
        return "0"; // "-0" too: a text that a person reads
    // A serial number of 20 digits would lose its last ones as a floating-point number.
    if (std::ranges::all_of(magnitude, isDigit))
        return std::string(number);
    const auto value = unsignedValue(magnitude);
    if (!value)
        return {}; // writing all digits of 1e999999999 out would fill the memory
    if (*value == 0)
        return "0"; // without the sign that a floating-point zero may have
    // The smallest numbers are the longest: "0.", 323 zeros and up to 17 digits.
    std::array<char, 400> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), *value, std::chars_format::fixed).ptr;
    return (negative ? "-" : "") + std::string(text.data(), end);
}

std::uint32_t wholeNumberBits(std::string_view text)
{
    // Nearly all numbers of a file are digits and nothing else.
    if (const auto bits = lowBitsOfDigits(text))
        return *bits;
    text = withoutOuterBlanks(text);
    const bool negative = take(text, '-');
    if (!negative)
        take(text, '+');

    auto bits = lowBitsOfDigits(text);
    if (!bits)
    {
        // A fraction is dropped, an exponent worked out: 1.5e2 is 150.
        if (const auto value = unsignedValue(text))
            bits = lowBits(*value);
    }
    // The low bits of -n are those of 0 - n, however many bits n had before it was cut.
    return negative ? 0U - bits.value_or(0) : bits.value_or(0);
}
