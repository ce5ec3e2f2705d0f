#pragma once

#include "source/ListReader.h"
#include "source/TagDatabase.h"

#include <vector>

/// Reads the list "database_groups". Groups of the reserved mask are left out.
class GroupListReader : public ListReader
{
public:
    /// @param target  receives the groups in the order of the file
    explicit GroupListReader(std::vector<TagGroup>& target);

    bool beginElement() override;
    void memberName(std::string_view name) override { search.find(name); }
    void memberValue(std::string_view content) override;
    void endElement() override;

private:
    void clear() override;

    std::vector<TagGroup>& groups;
    MemberSearch<TagGroup> search;
};
