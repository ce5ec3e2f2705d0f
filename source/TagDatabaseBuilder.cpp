#include "source/TagDatabaseBuilder.h"

// How the levels go through a file:
//
//   {                                            level 1, the root
//     "database_groups": [                       level 2, a list
//       {"mask": "1", "flag": "ALM"}             level 3, an element
//     ],
//     "structure": [                             level 2
//       {"lable": "Plant", "structure": [        level 3, and 4 for the list of its children
//         {"lable": "Pumps"}                     level 5
//       ]}
//     ],
//     "database": [                              level 2
//       {"Name": "Pumps.P1.Speed", "Size": 2}    level 3
//     ],
//     "made by": {"tool": ["x"]}                 ignored; the level stays 1
//   }
//
// At level 1 the member's name chooses the reader; from there on down each value goes to that reader. What means
// nothing is counted by its brackets only (`ignoredDepth`) until its last one closes, so whatever is inside cannot be
// mistaken for a list: "structure" inside "made by" is none.

void TagDatabaseBuilder::beginDocument()
{
    groups.reset();
    structure.reset();
    tags.reset();
    level = Outside;
    ignoredDepth = 0;
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

void TagDatabaseBuilder::key(std::string_view name)
{
    // Names stand in objects: in the root or in an element of a list. The value follows at once, so whoever reads it
    // needs to remember one name only, whatever the depth.
    if (ignoredDepth > 0)
        return;
    if (level == Root)
        list = listNamed(name);
    else
        list->memberName(name);
}

void TagDatabaseBuilder::text(std::string_view content)
{
    value(Kind::Text, content);
}

void TagDatabaseBuilder::literal()
{
    value(Kind::Literal, {});
}

void TagDatabaseBuilder::value(Kind kind, std::string_view content)
{
    // Inside a list there are only its elements, inside an element only its members: the level alone says which.
    if (ignoredDepth > 0)
        ignore(kind);
    else if (level == Outside)
        open(kind, Kind::Object);
    else if (level == Root)
        rootMember(kind);
    else if (level % 2 == List % 2)
        listElement(kind);
    else
        elementMember(kind, content);
}

/// @return the reader of the list, or null for a name that means nothing
ListReader* TagDatabaseBuilder::listNamed(std::string_view name)
{
    if (name == "database_groups")
        return &groups;
    if (name == "structure")
        return &structure;
    if (name == "database")
        return &tags;
    return nullptr;
}

void TagDatabaseBuilder::rootMember(Kind kind)
{
    if (list == nullptr)
        return ignore(kind);
    // Before the kind is looked at: a list that is there as a number or null counts as present, and as empty.
    list->begin();
    open(kind, Kind::Array);
}

/// Begins an element of a list. One that is not an object has no members: it is complete at once.
void TagDatabaseBuilder::listElement(Kind kind)
{
    if (!list->beginElement())
        return ignore(kind);
    open(kind, Kind::Object);
    if (kind != Kind::Object)
        list->endElement();
}

void TagDatabaseBuilder::elementMember(Kind kind, std::string_view content)
{
    // Told whatever its kind is, with no content when it has none: the last member of a name counts, so a later null
    // takes an earlier value back.
    list->memberValue(content);
    if (kind == Kind::Array && list->holdsChildren())
        ++level;
    else
        ignore(kind);
}

/// Goes a level down into an object or array of the wanted kind; a value of another kind means nothing.
void TagDatabaseBuilder::open(Kind kind, Kind wanted)
{
    if (kind == wanted)
        ++level;
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
    // The root is at an odd level as well, but belongs to no list.
    const bool wasElement = level > List && level % 2 != List % 2;
    --level;
    if (wasElement)
        list->endElement();
}
