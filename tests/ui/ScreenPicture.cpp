#include "tests/ui/ScreenPicture.h"

#include "tests/ui/Contrast.h"
#include "tests/ui/ScreenImage.h"

#include <wx/window.h>

#include <algorithm>
#include <functional>
#include <numeric>
#include <unordered_map>
#include <unordered_set>

namespace
{

Rgb colourOf(unsigned pixel)
{
    const auto part = [pixel](unsigned shift) { return static_cast<std::uint8_t>(pixel >> shift & 0xFFU); };
    return {part(16), part(8), part(0)};
}

} // namespace

ScreenPicture::ScreenPicture(const wxWindow& window) : ScreenPicture(window.GetScreenRect()) {}

ScreenPicture::ScreenPicture(const wxWindow& window, const wxRect& part)
    : ScreenPicture(wxRect(window.ClientToScreen(part.GetPosition()), part.GetSize()))
{
}

ScreenPicture::ScreenPicture(const wxRect& place) : width(place.width), height(place.height)
{
    const wxImage picture = screenImage(place);
    for (int y = 0; y < height; ++y)
    {
        for (int x = 0; x < width; ++x)
        {
            pixels.push_back(
                static_cast<Pixel>(picture.GetRed(x, y) << 16 | picture.GetGreen(x, y) << 8 | picture.GetBlue(x, y)));
        }
    }
}

ScreenPicture::Pixel ScreenPicture::ground() const
{
    std::unordered_map<Pixel, int> counts;
    for (const Pixel pixel : pixels)
        ++counts[pixel];
    const auto most = std::max_element(counts.begin(), counts.end(),
                                       [](const auto& one, const auto& other) { return one.second < other.second; });
    return most->first;
}

wxRect ScreenPicture::inked() const
{
    const Pixel paper = ground();
    wxRect ink;
    for (std::size_t i = 0; i < pixels.size(); ++i)
    {
        const int place = static_cast<int>(i);
        if (pixels[i] != paper)
            ink.Union(wxRect(place % width, place / width, 1, 1));
    }
    return ink;
}

double ScreenPicture::contrastToGround() const
{
    const Rgb paper = colourOf(ground());
    double highest = 1;
    for (const Pixel pixel : std::unordered_set<Pixel>(pixels.begin(), pixels.end()))
        highest = std::max(highest, contrast(colourOf(pixel), paper));
    return highest;
}

int ScreenPicture::pixelsApartFromCorner(double least) const
{
    const Rgb corner = colourOf(pixels.front());
    const auto isApart = [&](Pixel pixel) { return contrast(colourOf(pixel), corner) >= least; };
    return static_cast<int>(std::count_if(pixels.begin(), pixels.end(), isApart));
}

int ScreenPicture::pixelsApartFrom(const ScreenPicture& other, double least) const
{
    const auto isApart = [&](Pixel one, Pixel two) { return contrast(colourOf(one), colourOf(two)) >= least ? 1 : 0; };
    return std::inner_product(pixels.begin(), pixels.end(), other.pixels.begin(), 0, std::plus<>(), isApart);
}
