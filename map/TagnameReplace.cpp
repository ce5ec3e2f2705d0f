#include "map/TagnameReplace.h"

#include "map/SlotAccess.h"

namespace
{

/// Renames texts, remembering the last one: the slots of an object follow each other and share one name.
class Renamer
{
public:
    Renamer(std::string_view wanted, std::string_view substitute) : find(wanted), replacement(substitute) {}

    InternedText rename(InternedText name)
    {
        if (name == lastName)
            return lastResult;
        lastName = name;
        lastResult = name.view().find(find) == std::string_view::npos
                         ? name
                         : InternedText(replaceAll(name.view(), find, replacement));
        return lastResult;
    }

private:
    std::string_view find;
    std::string_view replacement;
    InternedText lastName;
    InternedText lastResult;
};

} // namespace

std::string replaceAll(std::string_view text, std::string_view find, std::string_view replacement)
{
    std::string result;
    result.reserve(text.size() + replacement.size());
    if (find.empty())
        return result.append(text);
    std::size_t done = 0;
    for (std::size_t at = text.find(find); at != std::string_view::npos; at = text.find(find, done))
    {
        result.append(text, done, at - done).append(replacement);
        done = at + find.size();
    }
    return result.append(text, done);
}

void replaceInTagnames(RegisterSlots& slots, std::span<const int> addresses, std::string_view find,
                       std::string_view replacement)
{
    Renamer renamer(find, replacement);
    for (const int address : addresses)
    {
        if (!isAddress(address) || slotAt(slots, address).locked)
            continue;
        InternedText& tagname = slotAt(slots, address).tagname;
        tagname = renamer.rename(tagname);
    }
}
