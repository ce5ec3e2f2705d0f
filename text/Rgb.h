#pragma once

#include <cstdint>

/// A colour as red, green, blue, each 0..255; turned into the toolkit's colour where something is painted.
struct Rgb
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Rgb&, const Rgb&) = default;
};
