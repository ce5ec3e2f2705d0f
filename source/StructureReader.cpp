#include "source/StructureReader.h"

#include <array>
#include <cstddef>

// The tree is kept flat, depth first as the file has it, with the index of each node's parent:
//
//   {"lable": "Plant", "structure": [        0  Plant   -1
//      {"lable": "Pumps", "structure": [     1  Pumps    0
//         {"lable": "P1"}]},                 2  P1       1
//      {"lable": "Tanks"}]}                  3  Tanks    0
//
// Any depth is read so without recursion, and whoever shows the tree has each parent made before its children.

namespace
{

/// The toolkit's tree control (3.2) calls itself once for each level when it expands and paints, and the stack is 1 MB
/// on Windows. No plant is this deep.
constexpr std::size_t deepestLevel = 1000;

// "lable" is how the files spell it; "label" is another member and means nothing.
constexpr std::string_view lable = "lable";
constexpr std::string_view children = "structure";

// The list of the children is no value of the node itself.
constexpr std::array<Member<StructureNode>, 3> members{{
    {lable, [](StructureNode& node, std::string_view content) { node.label = content; }},
    {"dbprefix", [](StructureNode& node, std::string_view content) { node.dbPrefix = content; }},
    {children, [](StructureNode&, std::string_view) {}},
}};

} // namespace

StructureReader::StructureReader(std::vector<StructureNode>& target) : nodes(target), search(members) {}

bool StructureReader::beginElement()
{
    const bool isRoot = openNodes.empty();
    // The tree has one root, so the elements after the first mean nothing.
    if (isRoot && !nodes.empty())
        return false;
    const int parent = isRoot ? -1 : openNodes.back();
    openNodes.push_back(static_cast<int>(nodes.size()));
    nodes.push_back({{}, {}, parent});
    return true;
}

void StructureReader::memberValue(std::string_view content)
{
    const auto index = static_cast<std::size_t>(openNodes.back());
    search.take(nodes[index], content);
    // Whether it is there counts, not what it is: null makes a root without text. Further down a node without the
    // member is not a failure either: it only has no text.
    if (index == 0 && search.hasFound(lable))
        rootHasLable = true;
    // Nodes stand in the order of the file, so whatever follows this one now came from an earlier list of children.
    if (search.hasFound(children))
        nodes.resize(index + 1);
}

bool StructureReader::holdsChildren() const
{
    // Too deep a list is passed over like any other member that means nothing, so its node stays, as a leaf.
    return search.hasFound(children) && openNodes.size() <= deepestLevel;
}

void StructureReader::endElement()
{
    openNodes.pop_back();
}

void StructureReader::clear()
{
    nodes.clear();
    openNodes.clear();
    rootHasLable = false;
}
