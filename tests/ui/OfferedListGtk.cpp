#include "tests/ui/OfferedList.h"

#include <gtk/gtk.h>

std::optional<wxPoint> openListCorner()
{
    std::optional<wxPoint> corner;
    GList* const windows = gtk_window_list_toplevels();
    for (const GList* item = windows; item != nullptr; item = item->next)
    {
        auto* const window = GTK_WINDOW(item->data);
        if (gtk_window_get_type_hint(window) != GDK_WINDOW_TYPE_HINT_COMBO ||
            gtk_widget_get_mapped(GTK_WIDGET(window)) == FALSE)
            continue;
        corner.emplace();
        gtk_window_get_position(window, &corner->x, &corner->y);
    }
    g_list_free(windows);
    return corner;
}
