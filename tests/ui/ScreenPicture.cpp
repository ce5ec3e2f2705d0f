#include "tests/ui/ScreenPicture.h"

#include <gdk/gdk.h>
#include <wx/window.h>

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace
{

double linear(unsigned channel)
{
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(unsigned pixel)
{
    return 0.2126 * linear(pixel >> 16) + 0.7152 * linear(pixel >> 8 & 0xFF) + 0.0722 * linear(pixel & 0xFF);
}

} // namespace

ScreenPicture::ScreenPicture(const wxWindow& window, const wxRect& part) : width(part.width), height(part.height)
{
    // The toolkit's own picture of the screen (3.2 with GTK 3) stays empty.
    const wxPoint corner = window.ClientToScreen(part.GetPosition());
    GdkPixbuf* const picture =
        gdk_pixbuf_get_from_window(gdk_get_default_root_window(), corner.x, corner.y, width, height);
    const guchar* line = gdk_pixbuf_read_pixels(picture);
    for (int y = 0; y < height; ++y)
    {
        const guchar* pixel = line;
        for (int x = 0; x < width; ++x)
        {
            pixels.push_back(static_cast<Pixel>(pixel[0] << 16 | pixel[1] << 8 | pixel[2]));
            pixel += gdk_pixbuf_get_n_channels(picture);
        }
        line += gdk_pixbuf_get_rowstride(picture);
    }
    g_object_unref(picture);
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

double ScreenPicture::contrast() const
{
    const double paper = luminance(ground());
    double highest = 1;
    for (const Pixel pixel : pixels)
    {
        const double ink = luminance(pixel);
        highest = std::max(highest, (std::max(ink, paper) + 0.05) / (std::min(ink, paper) + 0.05));
    }
    return highest;
}
