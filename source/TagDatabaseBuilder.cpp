#include "source/TagDatabaseBuilder.h"

#include "json/JsonNumber.h"
#include "text/Integers.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string>

namespace
{

/// Marks groups and tags that are no part of the database; only the exact value does.
constexpr std::uint32_t reservedMask = 0x200000;

/// The toolkit's tree control recurses when it expands and paints; no plant is this deep.
constexpr std::size_t deepestLevel = 1000;

enum RootKey : std::size_t
{
    GroupsKey,
    StructureKey,
    DatabaseKey
};
constexpr std::array<std::string_view, 3> rootKeys{"database_groups", "structure", "database"};

enum GroupKey : std::size_t
{
    MaskKey,
    FlagKey,
    TypeKey,
    DescKey
};
constexpr std::array<std::string_view, 4> groupKeys{"mask", "flag", "type", "desc"};

enum NodeKey : std::size_t
{
    LableKey,
    DbPrefixKey,
    ChildrenKey
};
constexpr std::array<std::string_view, 3> nodeKeys{"lable", "dbprefix", "structure"};

enum TagKey : std::size_t
{
    NameKey,
    DescriptionKey,
    TypeWordKey,
    SizeKey,
    ElementsKey,
    AttributesKey,
    TagGroupsKey
};
constexpr std::array<std::string_view, 7> tagKeys{"Name",     "Description", "Type",  "Size",
                                                  "Elements", "Attributes",  "Groups"};

/// The place of a name in a list, or the list's size. Objects of one kind mostly have their members in one order:
/// the name behind the one found last is tried first.
std::size_t indexOf(std::string_view name, std::span<const std::string_view> names, std::size_t foundLast)
{
    const std::size_t next = foundLast + 1 < names.size() ? foundLast + 1 : 0;
    if (names[next] == name)
        return next;
    const auto found = std::ranges::find(names, name);
    if (found != names.end())
        return static_cast<std::size_t>(found - names.begin());
    return names.size();
}

/// The type that the word stands for; any other word leaves the code of an unused record.
TagType typeOf(std::string_view word)
{
    if (word == "Numeric")
        return TagType::Numeric;
    if (word == "String")
        return TagType::String;
    return TagType::Integer;
}

} // namespace

void TagDatabaseBuilder::beginDocument()
{
    database.groups.clear();
    database.structure.clear();
    database.tags.clear();
    hasStructure = false;
    hasLable = false;
    hasDatabase = false;
    openRoles.clear();
    ignoredDepth = 0;
    openNodes.clear();
}

void TagDatabaseBuilder::beginObject()
{
    value(Kind::Object, {});
}

void TagDatabaseBuilder::endObject()
{
    close();
}

void TagDatabaseBuilder::beginArray()
{
    value(Kind::Array, {});
}

void TagDatabaseBuilder::endArray()
{
    close();
}

void TagDatabaseBuilder::text(std::string_view content)
{
    value(Kind::Text, content);
}

void TagDatabaseBuilder::literal()
{
    value(Kind::Literal, {});
}

void TagDatabaseBuilder::key(std::string_view name)
{
    if (ignoredDepth > 0)
        return;
    switch (openRoles.back())
    {
    case Role::Tag:
        keyIndex = indexOf(name, tagKeys, keyIndex);
        break;
    case Role::Node:
        keyIndex = indexOf(name, nodeKeys, keyIndex);
        break;
    case Role::Group:
        keyIndex = indexOf(name, groupKeys, keyIndex);
        break;
    default:
        keyIndex = indexOf(name, rootKeys, keyIndex);
        break;
    }
}

void TagDatabaseBuilder::value(Kind kind, std::string_view content)
{
    if (ignoredDepth > 0)
        return ignore(kind);
    if (openRoles.empty())
        return open(kind, Kind::Object, Role::Root);
    switch (openRoles.back())
    {
    case Role::Root:
        return rootMember(kind);
    case Role::Group:
        return groupMember(kind, content);
    case Role::Node:
        return nodeMember(kind, content);
    case Role::Tag:
        return tagMember(kind, content);
    default:
        return beginElement(openRoles.back(), kind);
    }
}

void TagDatabaseBuilder::rootMember(Kind kind)
{
    switch (keyIndex)
    {
    case GroupsKey:
        database.groups.clear();
        return open(kind, Kind::Array, Role::GroupList);
    case StructureKey:
        hasStructure = true;
        hasLable = false;
        database.structure.clear();
        return open(kind, Kind::Array, Role::RootNodeList);
    case DatabaseKey:
        hasDatabase = true;
        database.tags.clear();
        return open(kind, Kind::Array, Role::TagList);
    default:
        return ignore(kind);
    }
}

void TagDatabaseBuilder::groupMember(Kind kind, std::string_view content)
{
    TagGroup& group = database.groups.back();
    switch (keyIndex)
    {
    case MaskKey:
        group.mask = parseHexadecimal(content);
        break;
    case FlagKey:
        group.flag = content;
        break;
    case TypeKey:
        group.type = content;
        break;
    case DescKey:
        group.description = content;
        break;
    default:
        break;
    }
    ignore(kind);
}

void TagDatabaseBuilder::nodeMember(Kind kind, std::string_view content)
{
    const auto index = static_cast<std::size_t>(openNodes.back());
    StructureNode& node = database.structure[index];
    switch (keyIndex)
    {
    case LableKey:
        node.label = content;
        hasLable = hasLable || index == 0;
        break;
    case DbPrefixKey:
        node.dbPrefix = content;
        break;
    case ChildrenKey:
        database.structure.resize(index + 1);
        if (openNodes.size() <= deepestLevel)
            return open(kind, Kind::Array, Role::NodeList);
        break;
    default:
        break;
    }
    ignore(kind);
}

void TagDatabaseBuilder::tagMember(Kind kind, std::string_view content)
{
    switch (keyIndex)
    {
    case NameKey:
        tagName = content;
        break;
    case DescriptionKey:
        tagDescription = content;
        break;
    case TypeWordKey:
        tag.type = typeOf(content);
        break;
    case SizeKey:
        tag.size = static_cast<std::uint8_t>(wholeNumberBits(content));
        break;
    case ElementsKey:
        tag.elements = static_cast<std::int32_t>(wholeNumberBits(content));
        break;
    case AttributesKey:
        tag.attributes = static_cast<std::int32_t>(wholeNumberBits(content));
        break;
    case TagGroupsKey:
        tag.groups = wholeNumberBits(content);
        break;
    default:
        break;
    }
    ignore(kind);
}

/// Begins an element of a list. One that is no object is complete at once.
void TagDatabaseBuilder::beginElement(Role list, Kind kind)
{
    Role element = Role::Node;
    if (list == Role::RootNodeList && !database.structure.empty())
        return ignore(kind);
    if (list == Role::GroupList)
    {
        element = Role::Group;
        database.groups.emplace_back();
    }
    else if (list == Role::TagList)
    {
        element = Role::Tag;
        tag = {};
        tagName.clear();
        tagDescription.clear();
    }
    else
    {
        const int parent = openNodes.empty() ? -1 : openNodes.back();
        openNodes.push_back(static_cast<int>(database.structure.size()));
        database.structure.push_back({{}, {}, parent});
    }
    open(kind, Kind::Object, element);
    if (kind != Kind::Object)
        endElement(element);
}

void TagDatabaseBuilder::endElement(Role element)
{
    if (element == Role::Group && database.groups.back().mask == reservedMask)
        database.groups.pop_back();
    else if (element == Role::Tag && tag.groups != reservedMask)
        appendTag();
    else if (element == Role::Node)
        openNodes.pop_back();
}

void TagDatabaseBuilder::appendTag()
{
    // Texts of tags that are left out would stay in memory for ever.
    if (database.tags.count() == tagCapacity)
        return;
    tag.name = InternedText(tagName);
    tag.description = InternedText(tagDescription);
    database.tags.append(tag);
}

/// Opens an object or array for what it is wanted for; a value of another kind means nothing.
void TagDatabaseBuilder::open(Kind kind, Kind wanted, Role role)
{
    if (kind == wanted)
        openRoles.push_back(role);
    else
        ignore(kind);
}

void TagDatabaseBuilder::ignore(Kind kind)
{
    if (kind == Kind::Object || kind == Kind::Array)
        ++ignoredDepth;
}

void TagDatabaseBuilder::close()
{
    if (ignoredDepth > 0)
    {
        --ignoredDepth;
        return;
    }
    const Role closed = openRoles.back();
    openRoles.pop_back();
    endElement(closed);
}
