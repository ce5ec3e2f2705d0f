#include "tests/ui/ScreenImage.h"

#include <gdk/gdk.h>
#include <wx/bitmap.h>

wxImage screenImage(const wxRect& part)
{
    // The toolkit's own picture of the screen (3.2 with GTK 3) stays empty: it leaves out the windows.
    return wxBitmap(gdk_pixbuf_get_from_window(gdk_get_default_root_window(), part.x, part.y, part.width, part.height))
        .ConvertToImage();
}
