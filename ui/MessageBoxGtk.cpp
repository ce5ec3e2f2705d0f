#include "ui/MessageBox.h"
#include "ui/ToolkitText.h"

#include <gtk/gtk.h>

namespace
{

/// Puts into a message box what is missing there, at the moment when it is shown, for as long as this exists.
///
/// Toolkit 3.2 leaves a box without a title when its caption is the toolkit's own, "Message", and GTK 3.24 never shows
/// the icon of a box. The toolkit makes the box inside the call that shows it, so GTK itself is asked to tell when.
class MessageBoxCompletion
{
public:
    explicit MessageBoxCompletion(std::string title)
        : caption(std::move(title)), showSignal(g_signal_lookup("show", GTK_TYPE_WIDGET)),
          hook(g_signal_add_emission_hook(showSignal, 0, &MessageBoxCompletion::onShow, this, nullptr))
    {
    }

    ~MessageBoxCompletion() { g_signal_remove_emission_hook(showSignal, hook); }

    MessageBoxCompletion(const MessageBoxCompletion&) = delete;
    MessageBoxCompletion& operator=(const MessageBoxCompletion&) = delete;

private:
    static gboolean onShow(GSignalInvocationHint*, guint, const GValue* parameters, gpointer data)
    {
        auto* const shown = static_cast<GtkWidget*>(g_value_get_object(parameters));
        // Every control that appears meanwhile comes by here.
        if (GTK_IS_MESSAGE_DIALOG(shown))
            static_cast<const MessageBoxCompletion*>(data)->complete(*shown);
        return TRUE; // to be told of the next one too
    }

    void complete(GtkWidget& box) const
    {
        gtk_window_set_title(GTK_WINDOW(&box), caption.c_str());
        GtkMessageType type{};
        g_object_get(&box, "message-type", &type, nullptr);
        if (type == GTK_MESSAGE_ERROR)
            showErrorIcon(box);
    }

    /// Puts the icon before the text.
    static void showErrorIcon(GtkWidget& box)
    {
        GtkWidget* const texts = gtk_message_dialog_get_message_area(GTK_MESSAGE_DIALOG(&box));
        auto* const row = GTK_BOX(gtk_widget_get_parent(texts));
        GtkWidget* const icon = gtk_image_new_from_icon_name("dialog-error", GTK_ICON_SIZE_DIALOG);
        gtk_box_pack_start(row, icon, FALSE, FALSE, 0);
        // The row holds the texts already; a box is filled from its start.
        gtk_box_reorder_child(row, icon, 0);
        gtk_widget_set_valign(icon, GTK_ALIGN_START);
        gtk_widget_show(icon);
    }

    std::string caption;
    guint showSignal;
    gulong hook;
};

} // namespace

int messageBox(const wxString& text, const wxString& caption, long style, wxWindow* parent)
{
    const MessageBoxCompletion completion(modelText(caption));
    return wxMessageBox(text, caption, style, parent);
}
