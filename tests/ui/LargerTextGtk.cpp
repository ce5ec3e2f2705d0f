#include "tests/ui/LargerText.h"

#include <gtk/gtk.h>

namespace
{

/// GTK keeps the dots per inch of texts in 1024ths.
constexpr const char* dotsPerInch = "gtk-xft-dpi";
constexpr int usualDotsPerInch = 96 * 1024;

} // namespace

LargerText::LargerText(double factor)
{
    g_object_get(gtk_settings_get_default(), dotsPerInch, &usual, nullptr);
    const int before = usual > 0 ? usual : usualDotsPerInch;
    g_object_set(gtk_settings_get_default(), dotsPerInch, static_cast<int>(before * factor), nullptr);
}

LargerText::~LargerText()
{
    g_object_set(gtk_settings_get_default(), dotsPerInch, usual, nullptr);
}
