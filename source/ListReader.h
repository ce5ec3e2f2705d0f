#pragma once

#include <cstddef>
#include <span>
#include <string_view>

/// One member that the objects of a list may have, and where its value goes.
template <class Object>
struct Member
{
    std::string_view name;
    void (*take)(Object& object, std::string_view content);
};

/// Finds members by their names in a table of them.
///
/// The objects of a file have their members in the same order again and again. The search begins behind the member that
/// was found last, so once the order of the table is that of the file, each one is found at once.
template <class Object>
class MemberSearch
{
public:
    /// @param table  has to last as long as the search
    explicit MemberSearch(std::span<const Member<Object>> table) : members(table) {}

    /// Takes the name of the member whose value follows.
    void find(std::string_view name)
    {
        found = nullptr;
        for (std::size_t tried = 0; tried < members.size() && found == nullptr; ++tried)
        {
            const Member<Object>& member = members[next];
            next = next + 1 == members.size() ? 0 : next + 1;
            if (member.name == name)
                found = &member;
        }
    }

    /// True when the member of that name was found last.
    bool hasFound(std::string_view name) const { return found != nullptr && found->name == name; }

    /// Puts the value where the member says; that of a member that is not in the table means nothing.
    void take(Object& object, std::string_view content) const
    {
        if (found != nullptr)
            found->take(object, content);
    }

private:
    std::span<const Member<Object>> members;
    std::size_t next = 0; ///< where the search begins
    const Member<Object>* found = nullptr;
};

/// Reads one of the lists that a tag database file has as members of its root, element by element.
///
/// A file may have a list of one name several times; the last one counts. That is why a list can begin anew.
class ListReader
{
public:
    virtual ~ListReader() = default;

    /// True when the file has the list's member, whatever its value is.
    bool isPresent() const { return present; }

    /// Forgets that there was a list and all that was read.
    void reset()
    {
        present = false;
        clear();
    }

    /// The list begins. What was read of an earlier one is void.
    void begin()
    {
        present = true;
        clear();
    }

    /// An element begins; its members follow.
    /// @return false when it is to be passed over: neither its members nor its end will be told
    virtual bool beginElement() = 0;

    /// The name of a member of the element that began last and has not ended; its value follows.
    virtual void memberName(std::string_view name) = 0;

    /// The value of the member that was named last.
    /// @param content  a text, or the decimal text of a number; empty for a value of any other kind
    virtual void memberValue(std::string_view content) = 0;

    /// True when the value that was just told, an array, holds elements of the same kind as the list.
    virtual bool holdsChildren() const { return false; }

    /// The element that began last and has not ended is complete.
    virtual void endElement() = 0;

private:
    virtual void clear() = 0;

    bool present = false;
};
