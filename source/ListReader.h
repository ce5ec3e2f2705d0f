#pragma once

#include <string_view>

/// One member that the objects of a list may have, and where its value goes.
template <class Object>
struct Member
{
    std::string_view name;
    void (*take)(Object& object, std::string_view content);
};

/// Puts a value where the table of members says; a member that is not in the table means nothing.
template <class Object, class Members>
void takeMember(const Members& members, Object& object, std::string_view name, std::string_view content)
{
    for (const Member<Object>& member : members)
    {
        if (member.name == name)
            return member.take(object, content);
    }
}

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

    /// A member of the element that began last and has not ended.
    /// @param content  a text, or the decimal text of a number; empty for a value of any other kind
    virtual void member(std::string_view name, std::string_view content) = 0;

    /// True when the member that was just told, an array, holds elements of the same kind as the list.
    virtual bool holdsChildren(std::string_view /*memberName*/) const { return false; }

    /// The element that began last and has not ended is complete.
    virtual void endElement() = 0;

private:
    virtual void clear() = 0;

    bool present = false;
};
