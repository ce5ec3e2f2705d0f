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
      table(new TagGridTable(database)), searchIndex(database.tags)
{
    panelControls::showTable(*sourceGrid, table);
    showWhileEmpty(*sourceGrid, [this] { return emptyListText(); });
    createGroupBoxes();
    createTree();
    refreshTags();
}

void SourceBrowser::createGroupBoxes()
{
    const int border = FromDIP(groupBorder);
    const std::size_t count = std::min(database.groups.size(), filterableGroups);
    for (const TagGroup& group : std::span(database.groups).first(count))
    {
        auto* const box = new wxCheckBox(groupFilters, wxID_ANY, wxControl::EscapeMnemonics(toolkitText(group.flag)));
        panelControls::dress(*box, theme::groupFlag, theme::contentBackground);
        groupBoxes.push_back(box);
        groupFilterSizer->Add(box, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT | wxTOP, border);

        auto* const text = new wxStaticText(groupFilters, wxID_ANY, wxString());
        text->SetLabelText(toolkitText(group.description));
        panelControls::dress(*text, theme::groupDescription, theme::contentBackground);
        groupFilterSizer->Add(text, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT | wxRIGHT | wxTOP, border);
    }
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
        const wxTreeItemId parent = node.parent < 0 ? hiddenRoot : items[static_cast<std::size_t>(node.parent)];
        items.push_back(
            sourceTree->AppendItem(parent, toolkitText(node.label), -1, -1, new SourceTreeItem(node.dbPrefix)));
    }
    sourceTree->ExpandAll();
}

bool SourceBrowser::isInside(wxTreeItemId node, const wxTreeItemId& ancestor) const
{
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
        if (groupBoxes[i]->IsChecked())
            filter.checkedMasks.push_back(database.groups[i].mask);
    }
    return filter;
}

void SourceBrowser::refreshTags()
{
    table->show(filterTags(database.tags, searchIndex, currentFilter()));
    goToFirstRow(*sourceGrid);
}

wxString SourceBrowser::emptyListText() const
{
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
    if (chosenNode.IsOk() && isUnfolded(chosenNode))
        sourceTree->SelectItem(chosenNode);
}

void SourceBrowser::OnSourceFilterChanged(wxCommandEvent&)
{
    refreshTags();
}

void SourceBrowser::OnSourceFilterKeyDown(wxKeyEvent& event)
{
    // Down is not passed on: GTK 3 would give the keyboard to whatever control comes next.
    const int key = event.HasAnyModifiers() ? WXK_NONE : event.GetKeyCode();
    if (key == WXK_ESCAPE)
        sourceFilter->Clear();
    else if (key != WXK_DOWN)
        event.Skip();
    else if (sourceGrid->GetNumberRows() > 0)
        sourceGrid->SetFocus();
}

void SourceBrowser::OnSourceGridKeyDown(wxKeyEvent& event)
{
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
