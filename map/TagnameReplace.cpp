#include "map/TagnameReplace.h"

#include <cstddef>
#include <new>
#include <string>
#include <vector>

// In two steps, so that a lack of memory leaves the map as it was: first all new names are made, beside the map, then
// they are put into their slots. Each replacement may make a name many times as long, and 65,536 slots may bear it.

namespace
{

/// A lock keeps the whole register as it is, its name included: a controller reads it already.
std::vector<int> unlockedAmong(const RegisterSlots& slots, std::span<const int> addresses)
{
    std::vector<int> unlocked;
    unlocked.reserve(addresses.size());
    for (const int address : addresses)
    {
        if (RegisterSlots::contains(address) && !slots[address].locked)
            unlocked.push_back(address);
    }
    return unlocked;
}

std::size_t replacedSize(std::string_view text, std::string_view find, std::string_view replacement)
{
    std::size_t occurrences = 0;
    for (std::size_t at = text.find(find); at != std::string_view::npos; at = text.find(find, at + find.size()))
        ++occurrences;
    return text.size() - occurrences * find.size() + occurrences * replacement.size();
}

/// Appends a text with every occurrence of `find` replaced. What is put in is not looked at again: a replacement that
/// holds the find text would never come to an end.
void appendReplaced(std::string& result, std::string_view text, std::string_view find, std::string_view replacement)
{
    for (std::size_t at = text.find(find); at != std::string_view::npos; at = text.find(find))
    {
        result.append(text.substr(0, at)).append(replacement);
        text.remove_prefix(at + find.size());
    }
    result.append(text);
}

} // namespace

bool replaceInTagnames(RegisterSlots& slots, std::span<const int> addresses, std::string_view find,
                       std::string_view replacement)
try
{
    if (find.empty())
        return true;
    const std::vector<int> renamed = unlockedAmong(slots, addresses);

    // The memory for all names is asked for in one piece. Systems that hand out more memory than they have refuse a
    // single request that they cannot meet, but end a program that uses up many small ones.
    std::size_t bytes = 0;
    for (const int address : renamed)
        bytes += replacedSize(slots[address].tagname.view(), find, replacement);
    std::string names;
    names.reserve(bytes);

    std::vector<std::string_view> parts;
    parts.reserve(renamed.size());
    for (const int address : renamed)
    {
        const std::size_t begin = names.size();
        appendReplaced(names, slots[address].tagname.view(), find, replacement);
        parts.push_back(std::string_view(names).substr(begin));
    }
    std::vector<InternedText> tagnames(parts.size());
    InternedText::internAll(parts, tagnames);

    // Only now, when nothing can fail any more, are the slots changed.
    for (std::size_t i = 0; i < renamed.size(); ++i)
        slots[renamed[i]].tagname = tagnames[i];
    return true;
}
catch (const std::bad_alloc&)
{
    return false;
}
