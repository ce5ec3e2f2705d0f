#pragma once

#include <array>
#include <memory>
#include <span>

class MainFrame;
class wxKeyEvent;
class wxMenu;

/// The commands of the program. One table names for each of them everything that a user meets: button, menu entry and
/// keys. Buttons, context menus and key handlers are made by walking it, so a new command is a row here and the method
/// that it runs.

/// The rows of buttons.
enum class ButtonBar
{
    None,     ///< the command has no button
    Global,   ///< the bar across the top
    Database, ///< beside the title of the tag grid
    Map       ///< beside the title of the map grid
};

/// The empty room before a button.
enum class ButtonGap
{
    None,
    Narrow,
    Wide,
    Stretch ///< takes what the row has to spare
};

/// The grids that have a context menu and keys of their own.
enum class CommandGrid
{
    None,
    Tags,
    Map
};

/// Which state of the Ctrl key belongs to a key. Shift and Alt are never looked at.
enum class ControlKey
{
    Either,
    Up,
    Down
};

/// A key that runs a command while its grid has the keyboard.
struct CommandKey
{
    int code = 0; ///< key code of the toolkit; 0 for none
    ControlKey control = ControlKey::Either;
};

/// An entry of a grid's context menu.
struct MenuEntry
{
    int id = 0;                 ///< command identifier that the entry's event carries; 0 for no entry
    int section = 0;            ///< part of the menu, counted from 1; separators stand between the parts
    int place = 0;              ///< order inside the part
    const char* text = nullptr; ///< text, a tab, and the key shown beside it
};

/// Everything that one command is known by.
struct Command
{
    ButtonBar bar = ButtonBar::None;
    ButtonGap gap = ButtonGap::None;
    const char* image = nullptr; ///< picture of the button, as the executable names it
    const char* tooltip = nullptr;
    CommandGrid grid = CommandGrid::None; ///< where menu entry and keys belong
    MenuEntry menu{};
    std::array<CommandKey, 2> keys{};
    void (*run)(MainFrame& frame) = nullptr;
};

/// Every command; those with a button in the order in which their row shows them.
std::span<const Command> allCommands();

/// The command that a key stands for in a grid; nothing for a key that the grid keeps for itself.
const Command* commandForKey(CommandGrid grid, const wxKeyEvent& event);

/// A grid's context menu. Every entry is enabled: a command that finds nothing to do does nothing.
std::unique_ptr<wxMenu> contextMenu(CommandGrid grid);
