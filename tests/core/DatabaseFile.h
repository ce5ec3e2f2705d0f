#pragma once

#include "source/TagDatabaseLoader.h"
#include "tests/core/TempFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

/// A loaded file: how that ended, and what there is now.
struct Load
{
    LoadResult result;
    TagDatabase database;
};

/// Loads a file of these bytes into an empty database.
inline Load load(std::string_view bytes)
{
    const TempFolder folder;
    Load load{};
    load.result = loadTagDatabase(folder.write("database.json", bytes), load.database);
    return load;
}

/// A file of one root node and these tags.
inline std::string withTags(const std::string& tags)
{
    return R"({"structure":[{"lable":"Plant"}],"database":[)" + tags + "]}";
}

/// Loads a file of one root node and these tags.
inline Load loadTags(const std::string& tags)
{
    Load tagsOnly = load(withTags(tags));
    EXPECT_EQ(tagsOnly.result, LoadResult::Loaded);
    return tagsOnly;
}

/// Label, prefix and parent of each node in the order of the tree.
inline std::vector<std::string> nodesOf(const TagDatabase& database)
{
    std::vector<std::string> nodes;
    for (const StructureNode& node : database.structure)
        nodes.push_back(node.label + "|" + node.dbPrefix + "|" + std::to_string(node.parent));
    return nodes;
}
