#include "benchmarks/Screen.h"

#include <gdk/gdk.h>

void syncWithScreen()
{
    gdk_display_sync(gdk_display_get_default());
}

std::vector<std::uint32_t> rowOfScreen(int y)
{
    GdkWindow* const root = gdk_get_default_root_window();
    const int width = gdk_window_get_width(root);
    std::vector<std::uint32_t> row;
    GdkPixbuf* const picture = gdk_pixbuf_get_from_window(root, 0, y, width, 1);
    if (picture == nullptr)
        return row;
    const guint8* const pixels = gdk_pixbuf_read_pixels(picture);
    const int step = gdk_pixbuf_get_n_channels(picture);
    for (int x = 0; x < width; ++x)
    {
        const guint8* const pixel = pixels + static_cast<std::ptrdiff_t>(x) * step;
        row.push_back(static_cast<std::uint32_t>(pixel[0] << 16 | pixel[1] << 8 | pixel[2]));
    }
    g_object_unref(picture);
    return row;
}

int screenHeight()
{
    return gdk_window_get_height(gdk_get_default_root_window());
}
