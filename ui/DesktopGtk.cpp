#include "ui/Desktop.h"

#include <gtk/gtk.h>
#include <wx/window.h>

namespace desktop
{

void preferDark()
{
    g_object_set(gtk_settings_get_default(), "gtk-application-prefer-dark-theme", TRUE, nullptr);
}

void keepFocusOnClick(wxWindow& control)
{
    gtk_widget_set_focus_on_click(control.GetHandle(), FALSE);
}

} // namespace desktop
