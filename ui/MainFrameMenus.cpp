// The menus of both grids, and the keys of the map grid. A menu that pops up sends its event up to the window that
// holds the grid, so the entries of both menus are answered here, by their numbers.

#include "ui/CommandTable.h"
#include "ui/MainFrame.h"
#include "ui/grid/GridMenu.h"

#include <wx/grid.h>
#include <wx/menu.h>

void MainFrame::connectMenus()
{
    for (const Command& command : allCommands())
    {
        if (command.menu.id != 0)
            Bind(
                wxEVT_MENU, [this, run = command.run](wxCommandEvent&) { run(*this); }, command.menu.id);
    }
}

void MainFrame::showMapContextMenu(wxMouseEvent& event)
{
    popUpMenuUnderMouse(*mapGrid, *contextMenu(CommandGrid::Map), event.GetPosition());
}

void MainFrame::OnMapGridRightDown(wxMouseEvent& event)
{
    // Not passed on: toolkit 3.2 with GTK makes an event for a context menu of a press that nobody has handled.
    showMapContextMenu(event);
}

void MainFrame::OnMapGridContextMenu(wxContextMenuEvent& event)
{
    // The mouse has opened the menu when its button went down; what is left are the keys, which name no place.
    if (event.GetPosition() == wxDefaultPosition)
        popUpMenuAtCursor(*mapGrid, *contextMenu(CommandGrid::Map));
}

void MainFrame::OnMapGridKeyDown(wxKeyEvent& event)
{
    // While rows are exchanged or reselected the selection means nothing: keys are swallowed.
    if (refreshing)
        return;
    if (const Command* const command = commandForKey(CommandGrid::Map, event))
        command->run(*this);
    else
        event.Skip();
}
