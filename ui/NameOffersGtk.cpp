// The list below a field with GTK 3.24: shown by GTK's own completion, filled by what the user types. Three things
// about it are kept in order here: names that the arrow keys put into the field are not taken for typing, Enter and Esc
// do what the dialog promises, and a click elsewhere is not swallowed.

#include "ui/NameOffers.h"
#include "ui/ToolkitText.h"

#include <gtk/gtk.h>
#include <wx/clntdata.h>
#include <wx/event.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <utility>

namespace
{

std::vector<GtkWidget*> windowsOfProgram()
{
    std::vector<GtkWidget*> windows;
    GList* const list = gtk_window_list_toplevels();
    for (const GList* item = list; item != nullptr; item = item->next)
        windows.push_back(GTK_WIDGET(item->data));
    g_list_free(list);
    return windows;
}

/// A list of GTK's for completing what is typed.
struct CompletionList
{
    GtkEntryCompletion* completion;
    GtkWidget* window;
};

/// GTK 3.24 makes the window together with the completion and does not hand it out: it is the one that is new.
CompletionList createCompletionList()
{
    const std::vector<GtkWidget*> before = windowsOfProgram();
    GtkEntryCompletion* const completion = gtk_entry_completion_new();
    const std::vector<GtkWidget*> after = windowsOfProgram();
    const auto window = std::ranges::find_if(after, [&before](GtkWidget* candidate)
                                             { return std::ranges::find(before, candidate) == before.end(); });
    return {completion, *window};
}

/// The list below a field. The field owns it.
///
/// The completion of toolkit 3.2 cannot be used: it fills its list anew when an arrow key puts a name into the field,
/// so the second arrow key starts from the top again. GTK's own list is therefore filled here, and only by what the
/// user types.
class NameOffers : public wxClientData
{
public:
    NameOffers(wxTextCtrl& owner, NameSource source)
        : field(owner), entry(GTK_ENTRY(owner.GetHandle())), names(std::move(source)),
          rows(gtk_list_store_new(1, G_TYPE_STRING)), list(createCompletionList())
    {
        gtk_entry_completion_set_model(list.completion, GTK_TREE_MODEL(rows));
        gtk_entry_completion_set_text_column(list.completion, 0);
        // The arrow keys then put names into the field instead of only marking them in the list.
        gtk_entry_completion_set_inline_selection(list.completion, TRUE);
        // The list holds nothing but what is to be offered.
        gtk_entry_completion_set_match_func(
            list.completion, [](GtkEntryCompletion*, const char*, GtkTreeIter*, gpointer) -> gboolean { return TRUE; },
            nullptr, nullptr);
        g_signal_connect(list.completion, "cursor-on-match", G_CALLBACK(onCursorOnMatch), this);
        g_signal_connect(list.window, "map-event", G_CALLBACK(onListShown), nullptr);
        g_signal_connect(entry, "changed", G_CALLBACK(onChanged), this);
        gtk_entry_set_completion(entry, list.completion);
        field.Bind(wxEVT_CHAR_HOOK, &NameOffers::onKey, this);
    }

    ~NameOffers() override
    {
        g_object_unref(list.completion);
        g_object_unref(rows);
    }

    NameOffers(const NameOffers&) = delete;
    NameOffers& operator=(const NameOffers&) = delete;

private:
    static void onChanged(GtkEditable*, NameOffers* offers)
    {
        if (!offers->choosing)
            offers->fill();
    }

    /// An arrow key has reached a name of the list.
    static gboolean onCursorOnMatch(GtkEntryCompletion*, GtkTreeModel* model, GtkTreeIter* row, NameOffers* offers)
    {
        char* name = nullptr;
        gtk_tree_model_get(model, row, 0, &name, -1);
        offers->choose(name);
        g_free(name);
        return TRUE;
    }

    /// GTK 3.24 lets an open list keep every click and key for itself, so that a click elsewhere would only close it.
    /// It closes with the focus of the field all the same.
    static gboolean onListShown(GtkWidget* window, GdkEvent*, gpointer)
    {
        gdk_seat_ungrab(gdk_display_get_default_seat(gtk_widget_get_display(window)));
        gtk_grab_remove(window);
        // A modal dialog takes the clicks on all windows of its group, so the list needs a group of its own.
        GtkWindowGroup* const ownGroup = gtk_window_group_new();
        gtk_window_group_add_window(ownGroup, GTK_WINDOW(window));
        g_object_unref(ownGroup);
        return FALSE;
    }

    void fill()
    {
        // Kept, so that Esc can bring it back after the arrow keys.
        typed = gtk_entry_get_text(entry);
        gtk_list_store_clear(rows);
        for (const wxString& name : names(toolkitText(typed)))
            gtk_list_store_insert_with_values(rows, nullptr, -1, 0, modelText(name).c_str(), -1);
    }

    /// Puts a text into the field without taking it for something typed.
    void choose(const char* text)
    {
        choosing = true;
        gtk_entry_set_text(entry, text);
        gtk_editable_set_position(GTK_EDITABLE(entry), -1);
        choosing = false;
    }

    bool isOpen() const { return gtk_widget_get_mapped(list.window) != FALSE; }

    /// GTK closes the list of a completion that is taken away, and has no other call for it.
    void close()
    {
        gtk_entry_set_completion(entry, nullptr);
        gtk_entry_set_completion(entry, list.completion);
    }

    /// The keys that an open list would keep for itself.
    void onKey(wxKeyEvent& event)
    {
        if (!isOpen())
            return event.Skip();
        switch (event.GetKeyCode())
        {
        case WXK_RETURN:
        case WXK_NUMPAD_ENTER:
            // GTK would take it as the choice of a row, and that name is in the field already.
            close();
            return event.Skip();
        case WXK_ESCAPE:
            close();
            return choose(std::string(typed).c_str());
        default:
            return event.Skip();
        }
    }

    wxTextCtrl& field;
    GtkEntry* entry;
    NameSource names;
    GtkListStore* rows;
    CompletionList list;
    std::string typed; ///< what the list is for
    bool choosing = false;
};

} // namespace

void offerNames(wxTextCtrl& field, NameSource names)
{
    field.SetClientObject(new NameOffers(field, std::move(names)));
}
