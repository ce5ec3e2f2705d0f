// The source side at work. Tree, text and check boxes each say which tags are wanted; any change of one of them builds
// the list anew. Tags leave this side in one way only, by the copy command, which reads the selected rows.

#include "ui/SourceBrowser.h"

#include "ui/CommandTable.h"
#include "ui/PanelControls.h"
#include "ui/SourceTreeItem.h"
#include "ui/Theme.h"
#include "ui/ToolkitText.h"
#include "ui/grid/EmptyGridHint.h"
#include "ui/grid/GridMenu.h"
#include "ui/grid/GridScrolling.h"
#include "ui/grid/GridSelection.h"
#include "ui/grid/TagGridTable.h"

#include <wx/checkbox.h>
#include <wx/grid.h>
#include <wx/menu.h>
#include <wx/scrolwin.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include <algorithm>
#include <span>

namespace
{

/// Pixels between a check box or description and its neighbours.
constexpr int groupBorder = 5;

} // namespace

SourceBrowser::SourceBrowser(wxWindow* parent, const TagDatabase& tagDatabase, CommandRunner commandRunner)
    : SourceBrowserBase(parent), database(tagDatabase), runCommand(std::move(commandRunner)),
      table(new TagGridTable(database))
{
    panelControls::showTable(*sourceGrid, table);
    showWhileEmpty(*sourceGrid, [this] { return emptyListText(); });
}

void SourceBrowser::showDatabase()
{
    createGroupBoxes();
    createTree();
    // Last, because the boxes are asked what to show.
    refreshTags();
}

void SourceBrowser::createGroupBoxes()
{
    const int border = FromDIP(groupBorder);
    // A tag has 32 group bits, so there are no boxes for more.
    const std::size_t count = std::min(database.groups.size(), filterableGroups);
    for (const TagGroup& group : std::span(database.groups).first(count))
    {
        // An ampersand in the name of a group is a character and no shortcut.
        auto* const box = new wxCheckBox(groupFilters, wxID_ANY, wxControl::EscapeMnemonics(toolkitText(group.flag)));
        panelControls::dress(*box, theme::groupFlag, theme::contentBackground);
        groupBoxes.push_back(box);
        groupFilterSizer->Add(box, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT | wxTOP, border);

        // For the same reason. With its text from the start and no second look at its size, which GTK is slow to tell.
        auto* const text =
            new wxStaticText(groupFilters, wxID_ANY, wxControl::EscapeMnemonics(toolkitText(group.description)),
                             wxDefaultPosition, wxDefaultSize, wxST_NO_AUTORESIZE);
        panelControls::dress(*text, theme::groupDescription, theme::contentBackground);
        groupFilterSizer->Add(text, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT | wxRIGHT | wxTOP, border);
    }
    // There may be more boxes than the area is high; it scrolls then.
    groupFilters->FitInside();
    groupFilters->Layout();
}

void SourceBrowser::createTree()
{
    const wxTreeItemId hiddenRoot = sourceTree->AddRoot(wxString());
    std::vector<wxTreeItemId> items;
    items.reserve(database.structure.size());
    for (const StructureNode& node : database.structure)
    {
        // Nodes are listed after their parents, so the parent is in the tree already.
        const wxTreeItemId parent = node.parent < 0 ? hiddenRoot : items[static_cast<std::size_t>(node.parent)];
        items.push_back(
            sourceTree->AppendItem(parent, toolkitText(node.label), -1, -1, new SourceTreeItem(node.dbPrefix)));
    }
    // Open from the start: most plants have two levels, and a unit is then one click away.
    sourceTree->ExpandAll();
    // Windows has scrolled to the end meanwhile.
    if (!items.empty())
        sourceTree->EnsureVisible(items.front());
}

bool SourceBrowser::isInside(wxTreeItemId node, const wxTreeItemId& ancestor) const
{
    // From the parent on: a node is not inside itself.
    do
        node = sourceTree->GetItemParent(node);
    while (node.IsOk() && node != ancestor);
    return node.IsOk();
}

bool SourceBrowser::isUnfolded(wxTreeItemId node) const
{
    const wxTreeItemId hiddenRoot = sourceTree->GetRootItem();
    do
        node = sourceTree->GetItemParent(node);
    while (node != hiddenRoot && sourceTree->IsExpanded(node));
    return node == hiddenRoot;
}

TagFilter SourceBrowser::currentFilter() const
{
    TagFilter filter;
    filter.prefix = currentPrefix;
    filter.text = modelText(sourceFilter->GetValue());
    for (std::size_t i = 0; i < groupBoxes.size(); ++i)
    {
        // A box that is clear asks for nothing; two that are ticked ask for tags in both groups.
        if (groupBoxes[i]->IsChecked())
            filter.checkedMasks.push_back(database.groups[i].mask);
    }
    return filter;
}

void SourceBrowser::refreshTags()
{
    table->show(filterTags(database.tags, searchIndex, currentFilter()));
    // Other tags stand in the rows now, so the place in the old list means nothing.
    goToFirstRow(*sourceGrid);
}

wxString SourceBrowser::emptyListText() const
{
    // Two reasons for an empty list, and another filter helps against one of them only.
    return database.tags.count() == 0 ? "The database holds no tags" : "No tags match the filter";
}

std::vector<int> SourceBrowser::selectedTags() const
{
    std::vector<int> tags = selectedRows(*sourceGrid);
    std::transform(tags.begin(), tags.end(), tags.begin(), [this](int row) { return table->tagOf(row); });
    return tags;
}

void SourceBrowser::selectAllTags()
{
    sourceGrid->SelectAll();
}

void SourceBrowser::OnSourceTreeSelChanged(wxTreeEvent& event)
{
    const wxTreeItemId node = event.GetItem();
    const auto* const payload =
        node.IsOk() ? dynamic_cast<const SourceTreeItem*>(sourceTree->GetItemData(node)) : nullptr;
    // Folding and unfolding select nodes too. They bring back the node that is in force and change nothing.
    if (!payload || node == chosenNode)
        return;
    chosenNode = node;
    currentPrefix = payload->dbPrefix;
    refreshTags();
}

void SourceBrowser::OnSourceTreeItemCollapsing(wxTreeEvent& event)
{
    // The toolkit would select the folded node in place of a selected one inside it, which is nobody's choice.
    event.Skip();
    if (chosenNode.IsOk() && isInside(chosenNode, event.GetItem()))
        sourceTree->Unselect();
}

void SourceBrowser::OnSourceTreeItemExpanded(wxTreeEvent& event)
{
    event.Skip();
    // The node in force can be seen again, so it is highlighted again.
    if (chosenNode.IsOk() && isUnfolded(chosenNode))
        sourceTree->SelectItem(chosenNode);
}

void SourceBrowser::OnSourceFilterChanged(wxCommandEvent&)
{
    // At every letter: the largest database is filtered and painted before the next letter is typed.
    refreshTags();
}

void SourceBrowser::OnSourceFilterKeyDown(wxKeyEvent& event)
{
    // Down is not passed on: GTK 3 would give the keyboard to whatever control comes next.
    const int key = event.HasAnyModifiers() ? WXK_NONE : event.GetKeyCode();
    // Esc and Down are how one leaves a search: back to all tags, or on to those that are found.
    if (key == WXK_ESCAPE)
        sourceFilter->Clear();
    else if (key != WXK_DOWN)
        event.Skip();
    else if (sourceGrid->GetNumberRows() > 0)
        sourceGrid->SetFocus();
}

void SourceBrowser::OnSourceGridKeyDown(wxKeyEvent& event)
{
    // All other keys are the grid's own: arrows, pages, home and end.
    if (const Command* const command = commandForKey(CommandGrid::Tags, event))
        runCommand(*command);
    else
        event.Skip();
}

void SourceBrowser::OnSourceGridRightDown(wxMouseEvent& event)
{
    // The entries' events go up to the main window, as those of the other menus do.
    popUpMenuUnderMouse(*sourceGrid, *contextMenu(CommandGrid::Tags), event.GetPosition());
}

void SourceBrowser::OnSourceGridContextMenu(wxContextMenuEvent& event)
{
    // The mouse has opened the menu when its button went down; what is left are the keys, which name no place.
    if (event.GetPosition() == wxDefaultPosition)
        popUpMenuAtCursor(*sourceGrid, *contextMenu(CommandGrid::Tags));
}
