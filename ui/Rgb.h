#pragma once

#include <cstdint>

/// A colour as red, green, blue, each 0..255. It stays apart from the toolkit, so that colours can be constants.
struct Rgb
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Rgb&, const Rgb&) = default;
};
