#pragma once

#include "source/ListReader.h"
#include "source/TagDatabase.h"

#include <vector>

/// Reads the list "structure": its first element is the root of the tree, the others mean nothing. Each node has its
/// children in a list of the same name, to any depth; nodes more than 1,000 levels below the root are left out.
class StructureReader : public ListReader
{
public:
    /// @param target  receives the nodes depth first, each before its children
    explicit StructureReader(std::vector<StructureNode>& target);

    /// True when the root has the member "lable", whatever its value is.
    bool hasLable() const { return rootHasLable; }

    bool beginElement() override;
    void memberName(std::string_view name) override { search.find(name); }
    void memberValue(std::string_view content) override;
    bool holdsChildren() const override;
    void endElement() override;

private:
    void clear() override;

    std::vector<StructureNode>& nodes;
    MemberSearch<StructureNode> search;
    std::vector<int> openNodes; ///< indices from the root down to the node being read
    bool rootHasLable = false;
};
