#pragma once

#include "json/TolerantJson.h"
#include "source/TagDatabase.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Builds groups, structure tree and tags while the file is being read, so that no copy of the file is kept.
///
/// A member that its object has several times counts with its last value. A value of an unfitting kind reads as the
/// empty text or 0, and has neither elements nor members. Groups and tags of the reserved mask are left out, and so are
/// tags beyond 65,536 and structure nodes more than 1,000 levels below the root.
class TagDatabaseBuilder : public JsonEvents
{
public:
    void beginDocument() override;
    void beginObject() override;
    void endObject() override;
    void beginArray() override;
    void endArray() override;
    void key(std::string_view name) override;
    void text(std::string_view content) override;
    void literal() override;

    TagDatabase database;      ///< what was built
    bool hasStructure = false; ///< the root has the member "structure"
    bool hasLable = false;     ///< its first element has the member "lable"
    bool hasDatabase = false;  ///< the root has the member "database"

private:
    /// What an open object or array of the file is for.
    enum class Role
    {
        Root,
        GroupList,
        Group,
        RootNodeList,
        NodeList,
        Node,
        TagList,
        Tag
    };

    enum class Kind
    {
        Object,
        Array,
        Text,
        Literal
    };

    void value(Kind kind, std::string_view content);
    void rootMember(Kind kind);
    void groupMember(Kind kind, std::string_view content);
    void nodeMember(Kind kind, std::string_view content);
    void tagMember(Kind kind, std::string_view content);
    void beginElement(Role list, Kind kind);
    void endElement(Role element);
    void appendTag();
    void open(Kind kind, Kind wanted, Role role);
    void ignore(Kind kind);
    void close();

    std::vector<Role> openRoles;
    std::size_t ignoredDepth = 0; ///< open objects and arrays that mean nothing here
    std::size_t keyIndex = 0;     ///< of the last key, among the names that its object is searched for
    std::vector<int> openNodes;   ///< the structure nodes from the root down to the one being read
    TagRecord tag;                ///< the tag being read, without its texts
    std::string tagName;          ///< its name
    std::string tagDescription;   ///< its description
};
