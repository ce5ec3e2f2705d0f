#include "json/JsonNumber.h"

#include "text/Integers.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace
{

constexpr std::string_view blanks = " \t\r\n";

/// A number taken apart; its parts are digits only.
struct Decimal
{
    bool negative = false;
    std::string_view whole;
    std::string_view fraction;
    std::int32_t exponent = 0;
};

bool take(std::string_view& text, char c)
{
    if (!text.starts_with(c))
        return false;
    text.remove_prefix(1);
    return true;
}

std::string_view takeDigits(std::string_view& text)
{
    const std::size_t length = std::min(text.find_first_not_of("0123456789"), text.size());
    const std::string_view digits = text.substr(0, length);
    text.remove_prefix(length);
    return digits;
}

/// Takes an exponent with its letter; nothing there is an exponent of 0.
/// @return nothing when the letter stands without digits
std::optional<std::int32_t> takeExponent(std::string_view& text)
{
    if (!take(text, 'e') && !take(text, 'E'))
        return 0;
    const std::string_view exponent = text;
    if (!take(text, '-'))
        take(text, '+');
    if (takeDigits(text).empty())
        return std::nullopt;
    return parseInteger(exponent);
}

std::optional<Decimal> readDecimal(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    text = text.substr(0, text.find_last_not_of(blanks) + 1);

    Decimal number;
    number.negative = take(text, '-');
    if (!number.negative)
        take(text, '+');
    number.whole = takeDigits(text);
    if (take(text, '.'))
        number.fraction = takeDigits(text);
    if (number.whole.empty() && number.fraction.empty())
        return std::nullopt;
    const auto exponent = takeExponent(text);
    if (!exponent || !text.empty())
        return std::nullopt;
    number.exponent = *exponent;
    return number;
}

/// Digits and nothing else, which is what nearly all numbers of a file are.
std::optional<std::uint32_t> plainNumber(std::string_view text)
{
    std::uint32_t bits = 0;
    for (const char c : text)
    {
        if (c < '0' || c > '9')
            return std::nullopt;
        bits = bits * 10U + static_cast<std::uint32_t>(c - '0');
    }
    return bits;
}

} // namespace

bool isJsonNumber(std::string_view text)
{
    take(text, '-');
    const std::string_view whole = takeDigits(text);
    if (whole.empty() || (whole.size() > 1 && whole.front() == '0'))
        return false;
    if (take(text, '.') && takeDigits(text).empty())
        return false;
    return takeExponent(text).has_value() && text.empty();
}

std::uint32_t wholeNumberBits(std::string_view text)
{
    if (const auto bits = plainNumber(text))
        return *bits;
    const auto number = readDecimal(text);
    if (!number)
        return 0;

    // Arithmetic without sign wraps, so what is kept are the low bits of the exact value.
    std::uint32_t bits = 0;
    std::int64_t digitsLeft = static_cast<std::int64_t>(number->whole.size()) + number->exponent;
    for (const std::string_view digits : {number->whole, number->fraction})
    {
        for (const char digit : digits)
        {
            if (digitsLeft-- <= 0)
                break;
            bits = bits * 10U + static_cast<std::uint32_t>(digit - '0');
        }
    }
    // Ten to the power of 32 is a multiple of two to the power of 32: further zeros change nothing.
    for (std::int64_t zeros = std::min<std::int64_t>(digitsLeft, 32); zeros > 0; --zeros)
        bits *= 10U;
    return number->negative ? 0U - bits : bits;
}
