#pragma once

#include "json/TolerantJson.h"
#include "source/GroupListReader.h"
#include "source/StructureReader.h"
#include "source/TagDatabase.h"
#include "source/TagListReader.h"

#include <cstddef>
#include <string_view>

/// Builds groups, structure tree and tags while the file is being read, so that no copy of the file is kept: one of
/// 200 MB takes no more memory than its text and what comes out of it.
///
/// The file's root is an object whose lists are told to their readers; a root of any other kind has no lists. A member
/// that its object has several times counts with its last value. A value of an unfitting kind reads as the empty text
/// or 0, and has neither elements nor members.
class TagDatabaseBuilder : public JsonEvents
{
public:
    TagDatabaseBuilder() = default;

    // The readers refer to the database beside them.
    TagDatabaseBuilder(const TagDatabaseBuilder&) = delete;
    TagDatabaseBuilder& operator=(const TagDatabaseBuilder&) = delete;

    void beginDocument() override;
    void beginObject() override;
    void endObject() override;
    void beginArray() override;
    void endArray() override;
    void key(std::string_view name) override;
    void text(std::string_view content) override;
    void literal() override;

    TagDatabase database; ///< what was built
    GroupListReader groups{database.groups};
    StructureReader structure{database.structure};
    TagListReader tags{database.tags};

private:
    enum class Kind
    {
        Object,
        Array,
        Text,
        Literal
    };

    /// Depth of the objects and arrays that have a meaning. Lists and their elements take turns below the root, so an
    /// even level above 0 is a list, an odd one above 1 an element.
    enum Level : std::size_t
    {
        Outside,
        Root,
        List
    };

    void value(Kind kind, std::string_view content);
    ListReader* listNamed(std::string_view name);
    void rootMember(Kind kind);
    void listElement(Kind kind);
    void elementMember(Kind kind, std::string_view content);
    void open(Kind kind, Kind wanted);
    void ignore(Kind kind);
    void close();

    std::size_t level = Outside;
    std::size_t ignoredDepth = 0; ///< open objects and arrays, inside that level, that mean nothing here
    ListReader* list = nullptr;   ///< reads the list that was named last in the root; null for any other member
};
