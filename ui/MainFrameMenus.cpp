// The pop-up menus of the two grids and the keys of the tag grid.

#include "ui/MainFrame.h"

#include <wx/grid.h>
#include <wx/menu.h>
#include <wx/treectrl.h>

namespace
{

/// Command identifiers of the pop-up menus' entries.
enum MenuCommand : int
{
    CutCommand = 6003,
    DeleteCommand = 6004,
    CopyCommand = 6005,
    PasteCommand = 6006,
    AppendCommand = 6007,
    ReplaceCommand = 6008,
    CompressCommand = 6009,
    EditCommand = 6010,
    LockCommand = 6011,
    CopyTagsCommand = 6012
};

} // namespace

void MainFrame::connectMenus()
{
    const auto connect = [this](MenuCommand id, Command command)
    {
        Bind(
            wxEVT_MENU, [this, command](wxCommandEvent&) { (this->*command)(); }, id);
    };
    connect(CutCommand, &MainFrame::cutRegisters);
    connect(CopyCommand, &MainFrame::copyRegisters);
    connect(PasteCommand, &MainFrame::pasteRegisters);
    connect(AppendCommand, &MainFrame::appendRegisters);
    connect(DeleteCommand, &MainFrame::deleteRegisters);
    connect(EditCommand, &MainFrame::editRegister);
    connect(ReplaceCommand, &MainFrame::replaceInTagnames);
    connect(CompressCommand, &MainFrame::compressRegisters);
    connect(LockCommand, &MainFrame::toggleLocks);
    connect(CopyTagsCommand, &MainFrame::copySourceTags);
}

void MainFrame::showMapContextMenu(wxMouseEvent& event)
{
    wxMenu menu;
    menu.Append(CutCommand, "Cut\tCtrl+X");
    menu.Append(CopyCommand, "Copy\tCtrl+C");
    menu.Append(PasteCommand, "Paste\tCtrl+V");
    menu.Append(AppendCommand, "Append\tCtrl+B");
    menu.Append(DeleteCommand, "Delete\tDel");
    menu.AppendSeparator();
    menu.Append(EditCommand, "Edit");
    menu.Append(ReplaceCommand, "Tagname substitution");
    menu.Append(CompressCommand, "Compress");
    menu.AppendSeparator();
    menu.Append(LockCommand, "Lock / Unlock");
    mapGrid->GetGridWindow()->PopupMenu(&menu, event.GetPosition());
}

void MainFrame::OnMapGridRightDown(wxMouseEvent& event)
{
    showMapContextMenu(event);
}

void MainFrame::OnSourceGridRightDown(wxMouseEvent& event)
{
    wxMenu menu;
    menu.Append(CopyTagsCommand, "Copy\tCtrl+C");
    sourceGrid->GetGridWindow()->PopupMenu(&menu, event.GetPosition());
}

void MainFrame::OnSourceGridKeyDown(wxKeyEvent& event)
{
    if (event.ControlDown() && event.GetKeyCode() == 'C')
        copySourceTags();
    else if (event.ControlDown() && event.GetKeyCode() == 'A')
        sourceGrid->SelectAll();
    else
        event.Skip();
}

void MainFrame::OnSourceTreeSelChanged(wxTreeEvent& event)
{
    if (!sourceBrowser->isFilling())
        sourceBrowser->selectNode(event.GetItem());
}

void MainFrame::OnSourceTreeLeftUp(wxMouseEvent& event)
{
    // The root is selected from the start without its prefix; a click on it brings no change of selection.
    event.Skip();
    const wxTreeItemId node = sourceTree->HitTest(event.GetPosition());
    if (node.IsOk() && node == sourceTree->GetSelection())
        sourceBrowser->selectNode(node);
}

void MainFrame::OnSourceFilterChanged(wxCommandEvent&)
{
    sourceBrowser->refresh();
}

void MainFrame::OnMapGridCellDClick(wxGridEvent&)
{
    editRegister();
}
