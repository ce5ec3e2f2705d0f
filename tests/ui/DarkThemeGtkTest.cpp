// The desktop has a dark theme of its own, which is asked for.

#include <gtest/gtest.h>
#include <gtk/gtk.h>

TEST(DarkLook, DesktopIsAskedForItsDarkTheme)
{
    gboolean dark = FALSE;
    g_object_get(gtk_settings_get_default(), "gtk-application-prefer-dark-theme", &dark, nullptr);
    EXPECT_TRUE(dark);
}
