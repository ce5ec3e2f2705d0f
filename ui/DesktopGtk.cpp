#include "ui/Desktop.h"

#include <gtk/gtk.h>
#include <wx/textctrl.h>

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

int fieldHeight(const wxTextCtrl& field)
{
    int height = 0;
    gtk_widget_get_preferred_height(field.GetHandle(), nullptr, &height);
    return height;
}

} // namespace desktop
