#pragma once

#include "source/TagDatabase.h"
#include "source/TagFilter.h"

#include <wx/colour.h>

#include <string>
#include <vector>

class TagGridTable;
class wxCheckBox;
class wxFlexGridSizer;
class wxGrid;
class wxTextCtrl;
class wxTreeCtrl;
class wxTreeItemId;
class wxWindow;

/// The source side: a tree that chooses a tag-name prefix, a text filter, group check boxes, and the grid of the tags
/// that pass all three.
class SourceBrowser
{
public:
    /// Colours of a group's check box and description.
    struct GroupLook
    {
        wxColour flag;
        wxColour description;
        wxColour background;
    };

    /// The controls that the browser fills and reads; they outlive it.
    struct Controls
    {
        wxTreeCtrl& tree;
        wxGrid& grid;
        wxTextCtrl& filter;
        wxWindow& groupArea;
        wxFlexGridSizer& groupSizer;
        GroupLook groupLook;
    };

    /// @param tagDatabase  empty until it is loaded; outlives the browser
    /// @param tagRows      the tag grid's table
    SourceBrowser(const Controls& controls, const TagDatabase& tagDatabase, TagGridTable& tagRows);

    /// Builds group check boxes, tree and tag grid from the database, as far as it was loaded.
    void showDatabase();

    /// Makes the prefix of a tree node the current one. Nodes without a prefix of their own change nothing.
    void selectNode(const wxTreeItemId& node);

    /// Lists the tags that pass prefix, text filter and checked groups.
    void refresh();

    /// Indices of the tags whose rows are selected, in row order.
    std::vector<int> selectedTags() const;

    /// True while the tree is being built and its selection events mean nothing.
    bool isFilling() const { return filling; }

private:
    void createGroupFilters();
    void createTree();
    TagFilter currentFilter() const;

    Controls controls;
    const TagDatabase& database;
    TagGridTable& table;
    TagSearchIndex searchIndex;
    std::vector<wxCheckBox*> groupBoxes;
    std::string currentPrefix;
    bool filling = false;
};
