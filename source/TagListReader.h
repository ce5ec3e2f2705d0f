#pragma once

#include "source/ListReader.h"
#include "source/TagTable.h"

#include <string>

/// A tag while it is being read.
struct UnfinishedTag
{
    TagRecord record; ///< without its texts
    std::string name;
    std::string description;
};

/// Reads the list "database". Tags of the reserved mask are left out, and so are those that the table has no room for.
class TagListReader : public ListReader
{
public:
    /// @param target  receives the tags in the order of the file
    explicit TagListReader(TagTable& target) : tags(target) {}

    bool beginElement() override;
    void member(std::string_view name, std::string_view content) override;
    void endElement() override;

private:
    void clear() override;

    TagTable& tags;
    UnfinishedTag tag;
};
