#pragma once

#include <string>
#include <vector>

class wxMenu;
class wxMenuEvent;
class wxWindow;

/// Works the next pop-up menu as its user would: goes down to an entry with the arrow key and takes it with Enter.
class MenuScript
{
public:
    /// @param owner  window over which, or over a child of which, the menu opens
    /// @param entry  text of the entry to take, without its shortcut
    MenuScript(wxWindow& owner, std::string entry);
    ~MenuScript();

    MenuScript(const MenuScript&) = delete;
    MenuScript& operator=(const MenuScript&) = delete;

    /// Whether the menu was opened.
    bool wasOpened() const { return !entries.empty(); }

    /// The menu's entries as "identifier text|shortcut", separators as "-".
    const std::vector<std::string>& shownEntries() const { return entries; }

private:
    void onOpen(wxMenuEvent& event);

    wxWindow& window;
    std::string wanted;
    std::vector<std::string> entries;
};

/// Presses the primary mouse button over a place of a window.
/// @param x  pixels from the left edge
/// @param y  pixels from the top edge
void leftClickOn(const wxWindow& window, int x, int y);

/// Presses the secondary mouse button over a place of a window.
/// @param x  pixels from the left edge
/// @param y  pixels from the top edge
void rightClickOn(const wxWindow& window, int x, int y);
