#include "ui/SourceBrowser.h"

#include "ui/SourceTreeItem.h"
#include "ui/ToolkitText.h"
#include "ui/grid/GridSelection.h"
#include "ui/grid/TagGridTable.h"

#include <wx/checkbox.h>
#include <wx/grid.h>
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

SourceBrowser::SourceBrowser(const Controls& browserControls, const TagDatabase& tagDatabase, TagGridTable& tagRows)
    : controls(browserControls), database(tagDatabase), table(tagRows)
{
}

void SourceBrowser::showDatabase()
{
    searchIndex = TagSearchIndex(database.tags);
    createGroupFilters();
    createTree();
    refresh();
}

void SourceBrowser::createGroupFilters()
{
    const int border = controls.groupArea.FromDIP(groupBorder);
    const std::size_t count = std::min(database.groups.size(), filterableGroups);
    for (const TagGroup& group : std::span(database.groups).first(count))
    {
        auto* const box =
            new wxCheckBox(&controls.groupArea, wxID_ANY, wxControl::EscapeMnemonics(toolkitText(group.flag)));
        box->SetForegroundColour(controls.groupLook.flag);
        box->SetBackgroundColour(controls.groupLook.background);
        groupBoxes.push_back(box);
        controls.groupSizer.Add(box, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT | wxTOP, border);

        auto* const text = new wxStaticText(&controls.groupArea, wxID_ANY, wxString());
        text->SetLabelText(toolkitText(group.description));
        text->SetForegroundColour(controls.groupLook.description);
        text->SetBackgroundColour(controls.groupLook.background);
        controls.groupSizer.Add(text, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT | wxRIGHT | wxTOP, border);
    }
    controls.groupArea.FitInside();
    controls.groupArea.Layout();
}

void SourceBrowser::createTree()
{
    filling = true;
    std::vector<wxTreeItemId> items;
    items.reserve(database.structure.size());
    for (const StructureNode& node : database.structure)
    {
        const wxString text = toolkitText(node.label);
        auto* const payload = new SourceTreeItem(node.dbPrefix);
        if (node.parent < 0)
            items.push_back(controls.tree.AddRoot(text, -1, -1, payload));
        else
            items.push_back(
                controls.tree.AppendItem(items[static_cast<std::size_t>(node.parent)], text, -1, -1, payload));
    }
    if (!items.empty())
    {
        controls.tree.ExpandAll();
        controls.tree.SelectItem(items.front());
    }
    filling = false;
}

void SourceBrowser::selectNode(const wxTreeItemId& node)
{
    if (!node.IsOk())
        return;
    controls.tree.SelectItem(node);
    if (const auto* const payload = dynamic_cast<const SourceTreeItem*>(controls.tree.GetItemData(node)))
        currentPrefix = payload->dbPrefix;
    refresh();
}

TagFilter SourceBrowser::currentFilter() const
{
    TagFilter filter;
    filter.prefix = currentPrefix;
    filter.text = modelText(controls.filter.GetValue());
    for (std::size_t i = 0; i < groupBoxes.size(); ++i)
    {
        if (groupBoxes[i]->IsChecked())
            filter.checkedMasks.push_back(database.groups[i].mask);
    }
    return filter;
}

void SourceBrowser::refresh()
{
    table.show(filterTags(database.tags, searchIndex, currentFilter()));
}

std::vector<int> SourceBrowser::selectedTags() const
{
    std::vector<int> tags = selectedRows(controls.grid);
    std::transform(tags.begin(), tags.end(), tags.begin(), [this](int row) { return table.tagOf(row); });
    return tags;
}
