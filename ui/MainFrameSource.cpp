// The source side: what its tree, filter and check boxes ask for.

#include "ui/MainFrame.h"

#include <wx/grid.h>
#include <wx/treectrl.h>

void MainFrame::selectAllTags()
{
    sourceGrid->SelectAll();
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
