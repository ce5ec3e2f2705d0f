// The context menus of the two grids and their keys.

#include "ui/CommandTable.h"
#include "ui/MainFrame.h"

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
    mapGrid->GetGridWindow()->PopupMenu(contextMenu(CommandGrid::Map).get(), event.GetPosition());
}

void MainFrame::OnMapGridRightDown(wxMouseEvent& event)
{
    showMapContextMenu(event);
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

void MainFrame::OnSourceGridRightDown(wxMouseEvent& event)
{
    sourceGrid->GetGridWindow()->PopupMenu(contextMenu(CommandGrid::Tags).get(), event.GetPosition());
}

void MainFrame::OnSourceGridKeyDown(wxKeyEvent& event)
{
    if (const Command* const command = commandForKey(CommandGrid::Tags, event))
        command->run(*this);
    else
        event.Skip();
}
