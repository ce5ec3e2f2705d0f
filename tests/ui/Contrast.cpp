#include "tests/ui/Contrast.h"

#include <algorithm>
#include <cmath>

namespace
{

double linear(std::uint8_t channel)
{
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminance(Rgb colour)
{
    return 0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) + 0.0722 * linear(colour.blue);
}

} // namespace

double contrast(Rgb one, Rgb other)
{
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}
