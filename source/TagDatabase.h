#pragma once

#include "source/TagTable.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// A classification of tags: tags carry the bits of the groups that they belong to.
struct TagGroup
{
    std::string flag;        ///< short name, shown in the FLAGS column and beside the check box
    std::string type;        ///< kept as read
    std::string description; ///< what the group is, in words
    std::uint32_t mask = 0;  ///< bits that mark a member
};

/// Marks groups and tags that are not part of the database; only exactly this value does, not the bit.
constexpr std::uint32_t reservedMask = 0x200000;

/// Groups that tags can be filtered by; later ones are listed in the FLAGS column only.
constexpr std::size_t filterableGroups = 32;

/// One node of the structure tree, under which tags are found by the beginning of their names.
struct StructureNode
{
    std::string label;    ///< text of the tree node
    std::string dbPrefix; ///< beginning of the names of the node's tags
    int parent = -1;      ///< index of the parent node, always lower than the node's own; -1 for the root
};

/// The tag database as loaded: its tags, its groups in file order, its structure tree depth first.
struct TagDatabase
{
    TagTable tags;
    std::vector<TagGroup> groups;
    std::vector<StructureNode> structure; ///< empty, or the root first
};
