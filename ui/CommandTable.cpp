// The table of commands, and the three ways in: button, menu entry, key.
//
// Rows stand in the order of their buttons; a menu has an order of its own. The identifiers of menu entries are fixed
// numbers, 6003 to 6012, and follow no order. Space buttons are not in the table: they have neither entry nor key, and
// one of them always looks pressed.

#include "ui/CommandTable.h"

#include "ui/MainFrame.h"

#include <wx/event.h>
#include <wx/menu.h>

#include <algorithm>
#include <vector>

namespace
{

/// Runs an operation of the main window with fixed arguments.
template <auto Operation, auto... Arguments>
void run(MainFrame& frame)
{
    (frame.*Operation)(Arguments...);
}

constexpr CommandKey control(int code)
{
    return {code, ControlKey::Down};
}

constexpr CommandKey plain(int code)
{
    return {code, ControlKey::Up};
}

constexpr Command globalButton(ButtonGap gap, const char* image, const char* tooltip, void (*operation)(MainFrame&))
{
    return {.bar = ButtonBar::Global, .gap = gap, .image = image, .tooltip = tooltip, .run = operation};
}

constexpr Command mapButton(ButtonGap gap, const char* image, const char* tooltip, void (*operation)(MainFrame&),
                            MenuEntry menu = {}, std::array<CommandKey, 2> keys = {})
{
    return {.bar = ButtonBar::Map,
            .gap = gap,
            .image = image,
            .tooltip = tooltip,
            .grid = CommandGrid::Map,
            .menu = menu,
            .keys = keys,
            .run = operation};
}

constexpr Command keyOnly(CommandGrid grid, CommandKey key, void (*operation)(MainFrame&))
{
    return {.grid = grid, .keys = {key}, .run = operation};
}

// "Exit without saving" is what the button has always said; it does ask, and saves.
// "Append" shows a key in the menu that no grid takes: its row has none.
// Of the modifiers only Ctrl counts. The plus and minus keys stand for addresses, so plus moves down the list; "=" is
// plus without Shift on the keyboards that the program is used with.
//
// The purge has no menu entry: a menu is about the selection, and the purge works on all four spaces.
const Command commands[] = {
    globalButton(ButtonGap::None, "png_tool_export", "Export map to text file", run<&MainFrame::exportMap>),
    globalButton(ButtonGap::None, "png_tool_settings", "Settings and Defaults", run<&MainFrame::editSettings>),
    globalButton(ButtonGap::Stretch, "png_tool_about", "About", run<&MainFrame::showAbout>),
    globalButton(ButtonGap::None, "png_tool_help", "Help", run<&MainFrame::showHelp>),
    globalButton(ButtonGap::None, "png_tool_exit", "Exit without saving", run<&MainFrame::exitAndSave>),

    {.bar = ButtonBar::Database,
     .image = "png_tool_copy",
     .tooltip = "Copy - ctrl c",
     .grid = CommandGrid::Tags,
     .menu = {6012, 1, 1, "Copy\tCtrl+C"},
     .keys = {control('C')},
     .run = run<&MainFrame::copySourceTags>},
    keyOnly(CommandGrid::Tags, control('A'), run<&MainFrame::selectAllTags>),

    mapButton(ButtonGap::Stretch, "png_tool_view", "Toggle view", run<&MainFrame::toggleView>, {}, {{{WXK_SPACE}}}),
    mapButton(ButtonGap::None, "png_tool_correct", "Delete registers with errors",
              run<&MainFrame::deleteErrorRegisters>),
    mapButton(ButtonGap::Narrow, "png_tool_movedown", "Move registers down",
              run<&MainFrame::moveRegisters, false, MoveDirection::Down>, {}, {plain('='), plain(WXK_NUMPAD_ADD)}),
    mapButton(ButtonGap::None, "png_tool_moveup", "Move registers up",
              run<&MainFrame::moveRegisters, false, MoveDirection::Up>, {}, {plain('-'), plain(WXK_NUMPAD_SUBTRACT)}),
    mapButton(ButtonGap::None, "png_tool_shovedown", "Shove registers down",
              run<&MainFrame::moveRegisters, true, MoveDirection::Down>, {}, {control('='), control(WXK_NUMPAD_ADD)}),
    mapButton(ButtonGap::None, "png_tool_shoveup", "Shove registers up",
              run<&MainFrame::moveRegisters, true, MoveDirection::Up>, {},
              {control('-'), control(WXK_NUMPAD_SUBTRACT)}),
    mapButton(ButtonGap::Wide, "png_tool_cut", "Cut - ctrl x", run<&MainFrame::cutRegisters>,
              {6003, 1, 1, "Cut\tCtrl+X"}, {control('X')}),
    mapButton(ButtonGap::None, "png_tool_copy", "Copy - ctrl c", run<&MainFrame::copyRegisters>,
              {6005, 1, 2, "Copy\tCtrl+C"}, {control('C')}),
    mapButton(ButtonGap::None, "png_tool_paste", "Paste - ctrl v", run<&MainFrame::pasteRegisters>,
              {6006, 1, 3, "Paste\tCtrl+V"}, {control('V')}),
    mapButton(ButtonGap::None, "png_tool_append", "Append to block", run<&MainFrame::appendRegisters>,
              {6007, 1, 4, "Append\tCtrl+B"}),
    mapButton(ButtonGap::None, "png_tool_compress", "Compress registers into contiguous block",
              run<&MainFrame::compressRegisters>, {6009, 2, 3, "Compress"}),
    mapButton(ButtonGap::None, "png_tool_delete", "Delete - del", run<&MainFrame::deleteRegisters>,
              {6004, 1, 5, "Delete\tDel"}, {{{WXK_DELETE}}}),
    mapButton(ButtonGap::None, "png_tool_edit", "Edit", run<&MainFrame::editRegister>, {6010, 2, 1, "Edit"}),
    mapButton(ButtonGap::None, "png_tool_replace", "Tagname search and replace", run<&MainFrame::replaceInTagnames>,
              {6008, 2, 2, "Tagname substitution"}),
    mapButton(ButtonGap::None, "png_tool_lock_toggle", "Toggle register lock", run<&MainFrame::toggleLocks>,
              {6011, 3, 1, "Lock / Unlock"}),
    keyOnly(CommandGrid::Map, control('A'), run<&MainFrame::selectAllRegisters>),
};

bool isPressed(const CommandKey& key, const wxKeyEvent& event)
{
    if (key.code == 0 || key.code != event.GetKeyCode())
        return false;
    return key.control == ControlKey::Either || (key.control == ControlKey::Down) == event.ControlDown();
}

/// The commands of a grid's context menu, in the menu's order.
std::vector<const Command*> menuCommands(CommandGrid grid)
{
    // Sorted anew for each opening; there are ten entries at most.
    std::vector<const Command*> listed;
    for (const Command& command : commands)
    {
        if (command.grid == grid && command.menu.id != 0)
            listed.push_back(&command);
    }
    std::sort(listed.begin(), listed.end(),
              [](const Command* left, const Command* right) {
                  return std::pair(left->menu.section, left->menu.place) <
                         std::pair(right->menu.section, right->menu.place);
              });
    return listed;
}

} // namespace

std::span<const Command> allCommands()
{
    return commands;
}

const Command* commandForKey(CommandGrid grid, const wxKeyEvent& event)
{
    // The first row that takes the key is the only one: no key stands twice for the same grid.
    const auto* const found = std::find_if(
        std::begin(commands), std::end(commands),
        [&](const Command& command)
        {
            return command.grid == grid && std::any_of(command.keys.begin(), command.keys.end(),
                                                       [&](const CommandKey& key) { return isPressed(key, event); });
        });
    return found == std::end(commands) ? nullptr : found;
}

std::unique_ptr<wxMenu> contextMenu(CommandGrid grid)
{
    auto menu = std::make_unique<wxMenu>();
    int section = 1;
    for (const Command* const command : menuCommands(grid))
    {
        // Sections count from 1, so no separator stands before the first entry.
        if (command->menu.section != section)
            menu->AppendSeparator();
        section = command->menu.section;
        // What follows the tab is only shown: the toolkit (3.2) binds no keys for a menu that pops up.
        menu->Append(command->menu.id, command->menu.text);
    }
    return menu;
}
