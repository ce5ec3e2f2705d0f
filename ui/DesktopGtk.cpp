#include "ui/Desktop.h"

#include <gtk/gtk.h>
#include <wx/textctrl.h>

namespace
{

/// The dark variant of GTK 3's own theme (3.24) frames a check box in a grey darker than the ground it stands on, and
/// the toolkit takes its filling away when it gives the control a background.
constexpr const char* checkBoxStyle = "check:not(:checked):not(:disabled) { border-color: rgb(160,160,160); }";

} // namespace

namespace desktop
{

void preferDark()
{
    g_object_set(gtk_settings_get_default(), "gtk-application-prefer-dark-theme", TRUE, nullptr);
    GtkCssProvider* const style = gtk_css_provider_new();
    gtk_css_provider_load_from_data(style, checkBoxStyle, -1, nullptr);
    gtk_style_context_add_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(style),
                                              GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(style);
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
