#pragma once

#include <wx/treebase.h>

#include <string>

/// What a node of the source tree carries: the beginning of the names of its tags.
class SourceTreeItem : public wxTreeItemData
{
public:
    explicit SourceTreeItem(std::string prefix) : dbPrefix(std::move(prefix)) {}

    const std::string dbPrefix; ///< the node's "dbprefix", UTF-8
};
