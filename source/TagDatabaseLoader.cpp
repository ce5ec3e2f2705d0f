#include "source/TagDatabaseLoader.h"

#include "source/TolerantJson.h"
#include "text/Decode.h"
#include "text/Integers.h"
#include "text/ReadFile.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace
{

/// Marks groups and tags that are no part of the database; only the exact value does.
constexpr std::uint32_t reservedMask = 0x200000;

/// The toolkit's tree control recurses when it expands and paints; no plant is this deep.
constexpr std::size_t deepestLevel = 1000;

void loadGroups(JsonValue root, std::vector<TagGroup>& groups)
{
    groups.clear();
    const JsonValue list = root.member("database_groups");
    for (std::size_t i = 0; i < list.size(); ++i)
    {
        const JsonValue group = list[i];
        const std::uint32_t mask = parseHexadecimal(group.member("mask").text());
        if (mask == reservedMask)
            continue;
        groups.push_back({std::string(group.member("flag").text()), std::string(group.member("type").text()),
                          std::string(group.member("desc").text()), mask});
    }
}

/// A node whose children are being taken in.
struct OpenNode
{
    JsonValue children;
    std::size_t next; ///< index of the first child that is not in yet
    int node;
};

/// Adds one node, without its children.
/// @return what is needed to go on with its children
OpenNode addNode(JsonValue node, int parent, std::vector<StructureNode>& structure)
{
    structure.push_back(
        {std::string(node.member("lable").text()), std::string(node.member("dbprefix").text()), parent});
    return {node.member("structure"), 0, static_cast<int>(structure.size()) - 1};
}

void loadStructure(JsonValue root, std::vector<StructureNode>& structure)
{
    structure.clear();
    std::vector<OpenNode> path{addNode(root, -1, structure)};
    while (!path.empty())
    {
        OpenNode& innermost = path.back();
        if (innermost.next == innermost.children.size() || path.size() > deepestLevel)
        {
            path.pop_back();
            continue;
        }
        const JsonValue child = innermost.children[innermost.next++];
        path.push_back(addNode(child, innermost.node, structure));
    }
}

std::optional<TagType> typeOf(std::string_view word)
{
    if (word == "Integer")
        return TagType::Integer;
    if (word == "Numeric")
        return TagType::Numeric;
    if (word == "String")
        return TagType::String;
    return std::nullopt;
}

void loadTags(JsonValue list, TagTable& tags)
{
    enum Member : std::size_t
    {
        Name,
        Description,
        Type,
        Size,
        Elements,
        Attributes,
        Groups,
        MemberCount
    };
    constexpr std::array<std::string_view, MemberCount> names{"Name",     "Description", "Type",  "Size",
                                                              "Elements", "Attributes",  "Groups"};
    tags.clear();
    std::array<JsonValue, MemberCount> values;
    for (std::size_t i = 0; i < list.size() && tags.count() < tagCapacity; ++i)
    {
        list[i].members(names, values);
        const std::uint32_t groups = values[Groups].bits();
        if (groups == reservedMask)
            continue;
        // An unknown type leaves the code of the unused record as it is.
        TagRecord record = tags[tags.count()];
        record.name = InternedText(values[Name].text());
        record.description = InternedText(values[Description].text());
        record.type = typeOf(values[Type].text()).value_or(record.type);
        record.size = static_cast<std::uint8_t>(values[Size].bits());
        record.elements = static_cast<std::int32_t>(values[Elements].bits());
        record.attributes = static_cast<std::int32_t>(values[Attributes].bits());
        record.groups = groups;
        tags.append(record);
    }
}

/// Builds everything from the parsed file, in the order in which failures have to be noticed.
LoadResult loadContent(JsonValue root, TagDatabase& database)
{
    loadGroups(root, database.groups);

    const JsonValue structure = root.member("structure");
    if (!structure.present())
        return LoadResult::StructureMissing;
    const JsonValue top = structure.size() > 0 ? structure[0] : JsonValue();
    if (!top.member("lable").present())
        return LoadResult::LableMissing;
    loadStructure(top, database.structure);

    const JsonValue tags = root.member("database");
    if (!tags.present())
        return LoadResult::DatabaseMissing;
    loadTags(tags, database.tags);
    return LoadResult::Loaded;
}

} // namespace

LoadResult loadTagDatabase(const std::filesystem::path& path, TagDatabase& database)
{
    auto bytes = readFile(path);
    if (!bytes)
        return LoadResult::FileNotFound;
    try
    {
        const auto json = TolerantJson::parse(decodeText(std::move(*bytes)));
        return json ? loadContent(json->root(), database) : LoadResult::BadJson;
    }
    catch (const std::exception&) // a file too large for the memory
    {
        return LoadResult::BadJson;
    }
}

std::string_view loadMessage(LoadResult result)
{
    switch (result)
    {
    case LoadResult::Loaded:
        return "";
    case LoadResult::FileNotFound:
        return "Input file not found\n";
    case LoadResult::BadJson:
        return "Bad JSON format\n";
    case LoadResult::StructureMissing:
        return "[structure] key missing from JSON file\n";
    case LoadResult::LableMissing:
        return "[lable] key missing from JSON file\n";
    case LoadResult::DatabaseMissing:
        return "[database] key missing from JSON file\n";
    }
    return "";
}
