// What only GTK can be asked for. Each function makes good what GTK 3.24, or toolkit 3.2 on top of it, does differently
// from what the dark windows need.

#include "ui/Desktop.h"
#include "ui/ExpandersGtk.h"
#include "ui/Theme.h"
#include "ui/ToolkitText.h"

#include <gtk/gtk.h>
#include <wx/bmpbuttn.h>
#include <wx/combobox.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

namespace
{

/// Adds rules to those by which GTK draws every window.
/// @param rules  in GTK's kind of CSS
void addStyle(const char* rules)
{
    GtkCssProvider* const provider = gtk_css_provider_new();
    gtk_css_provider_load_from_data(provider, rules, -1, nullptr);
    gtk_style_context_add_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(provider),
                                              GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    // The screen keeps it for as long as the program runs.
    g_object_unref(provider);
}

/// Takes the buttons inside a control out of the order of the Tab key.
void leaveOutButtons(GtkWidget* part, gpointer)
{
    if (GTK_IS_BUTTON(part))
        gtk_widget_set_can_focus(part, FALSE);
    else if (GTK_IS_CONTAINER(part))
        gtk_container_forall(GTK_CONTAINER(part), leaveOutButtons, nullptr);
}

/// A picture button that takes no colour from its parent. With a colour of its own a button has rules of its own, and
/// GTK 3.24 then works out the look of each of the fifty buttons alone, which takes 7 ms of a start.
class PictureButton : public wxBitmapButton
{
public:
    PictureButton(wxWindow* parent, const wxBitmapBundle& picture, const wxSize& size)
    {
        Create(parent, wxID_ANY, picture, wxDefaultPosition, size, wxBU_EXACTFIT);
        gtk_button_set_relief(GTK_BUTTON(m_widget), GTK_RELIEF_NONE);
        gtk_style_context_add_class(gtk_widget_get_style_context(m_widget), "picture");
    }

    bool ShouldInheritColours() const override { return false; }
};

/// A colour as GTK's kind of CSS has it.
std::string cssColour(Rgb colour)
{
    return modelText(theme::colour(colour).GetAsString(wxC2S_HTML_SYNTAX));
}

} // namespace

namespace desktop
{

void preferDark()
{
    // Scroll bars, menus and message boxes are drawn by the theme and take none of our colours.
    constexpr const char* preference = "gtk-application-prefer-dark-theme";
    // GTK 3.24 loads the light theme when its settings come to be, and the dark one over it when the preference is set:
    // 13 ms of a start. A preference that is there by default has the dark one loaded at once.
    const auto settingsClass = static_cast<GObjectClass*>(g_type_class_ref(GTK_TYPE_SETTINGS));
    G_PARAM_SPEC_BOOLEAN(g_object_class_find_property(settingsClass, preference))->default_value = TRUE;
    g_type_class_unref(settingsClass);
    // Settings that were there before, or that the user has set otherwise, are told.
    gboolean dark = FALSE;
    g_object_get(gtk_settings_get_default(), preference, &dark, nullptr);
    if (dark == FALSE)
        g_object_set(gtk_settings_get_default(), preference, TRUE, nullptr);
}

void drawControlsPlainly()
{
    // The dark theme of GTK 3.24 marks the focus by one dotted line in grey, which the yellow and the coloured buttons
    // do not show at all, that of a field by one in dark blue, and the edge of a check box by a grey that is darker
    // than the background.
    addStyle("button:focus, checkbutton:focus { outline: 2px solid currentColor; outline-offset: -2px; }"
             "entry:focus { border-color: #3399ff; }"
             "check:not(:checked) { border-color: #b0b0b0; }");
    // A desktop that has no dark theme draws it for a light window.
    addStyle("paned > separator { background-image: image(#333333); }");
    const std::string picture =
        "button.picture { border: none; border-radius: 0; padding: 0; color: " + cssColour(theme::contentText) +
        "; background: " + cssColour(theme::headerBackground) + "; }";
    addStyle(picture.c_str());
    drawExpandersPlainly();
}

void darken(wxWindow&)
{
    // The theme has done it for all windows.
}

void showFocusAtOnce(wxWindow& window)
{
    // GTK 3.24 hides it when the window appears.
    g_signal_connect_after(window.GetHandle(), "map",
                           G_CALLBACK(+[](GtkWidget* shown) { gtk_window_set_focus_visible(GTK_WINDOW(shown), TRUE); }),
                           nullptr);
}

wxTreeCtrl* createTree(wxWindow* parent, long style)
{
    return new wxTreeCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, style);
}

wxBitmapButton* createPictureButton(wxWindow* parent, const wxBitmapBundle& picture, const wxSize& size)
{
    return new PictureButton(parent, picture, size);
}

void keepOneTabStop(wxComboBox& box)
{
    // GTK 3.24 stops at the arrow of the box too, where the keys only do what they do in the text.
    leaveOutButtons(box.GetHandle(), nullptr);
}

void setAccessibleName(wxWindow& control, const wxString& name)
{
    GtkWidget* widget = control.GetHandle();
    // The text of a combo box is a control of its own, and the one that has the keyboard.
    if (GTK_IS_COMBO_BOX(widget))
        widget = gtk_bin_get_child(GTK_BIN(widget));
    atk_object_set_name(gtk_widget_get_accessible(widget), name.utf8_str());
}

wxButton* createButton(wxWindow* parent, wxWindowID id, const wxString& text, long style)
{
    return new wxButton(parent, id, text, wxDefaultPosition, wxDefaultSize, style);
}

void keepFocusOnClick(wxWindow& control)
{
    // A click on a button would take the keyboard from the grid, and the next key would press the button again.
    gtk_widget_set_focus_on_click(control.GetHandle(), FALSE);
}

int fieldHeight(const wxTextCtrl& field)
{
    // GTK is asked itself, since toolkit 3.2 answers from the size that the field has at the moment.
    int height = 0;
    gtk_widget_get_preferred_height(field.GetHandle(), nullptr, &height);
    return height;
}

} // namespace desktop
