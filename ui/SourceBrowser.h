#pragma once

#include "source/TagDatabase.h"
#include "source/TagFilter.h"
#include "ui/SourceBrowserBase.h"

#include <wx/treebase.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

class TagGridTable;
class wxCheckBox;
struct Command;

/// The source side: a tree that chooses a tag-name prefix, a text filter, group check boxes, and the grid of the tags
/// that pass all three.
class SourceBrowser : public SourceBrowserBase
{
public:
    /// How a command of the tag grid is run whose key was pressed.
    using CommandRunner = std::function<void(const Command&)>;

    /// Shows nothing yet.
    /// @param tagDatabase  outlives the browser; may still be loaded
    SourceBrowser(wxWindow* parent, const TagDatabase& tagDatabase, CommandRunner commandRunner);

    /// Shows the database as far as it was loaded; to be called once.
    void showDatabase();

    /// Indices of the tags whose rows are selected, in row order.
    std::vector<int> selectedTags() const;

    /// Selects every listed tag.
    void selectAllTags();

protected:
    void OnSourceTreeSelChanged(wxTreeEvent& event) override;
    void OnSourceTreeItemCollapsing(wxTreeEvent& event) override;
    void OnSourceTreeItemExpanded(wxTreeEvent& event) override;
    void OnSourceFilterChanged(wxCommandEvent& event) override;
    void OnSourceFilterKeyDown(wxKeyEvent& event) override;
    void OnSourceGridKeyDown(wxKeyEvent& event) override;
    void OnSourceGridRightDown(wxMouseEvent& event) override;
    void OnSourceGridContextMenu(wxContextMenuEvent& event) override;

private:
    void createGroupBoxes();
    void createTree();
    bool isInside(wxTreeItemId node, const wxTreeItemId& ancestor) const;
    bool isUnfolded(wxTreeItemId node) const;
    TagFilter currentFilter() const;
    void refreshTags();
    wxString emptyListText() const;

    const TagDatabase& database;
    CommandRunner runCommand;
    TagGridTable* table = nullptr;
    std::optional<TagSearchIndex> searchIndex; ///< made for the first search
    std::vector<wxCheckBox*> groupBoxes;
    wxTreeItemId chosenNode; ///< the node whose prefix is in force; none before the first choice
    std::string currentPrefix;
};
