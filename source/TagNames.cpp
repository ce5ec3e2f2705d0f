#include "source/TagNames.h"

#include "text/UpperCase.h"

#include <algorithm>
#include <string>

// All names are gone through at each keystroke, without an index: the search ends as soon as there are names enough for
// a short list, and even one that finds nothing is over before the next key.

std::vector<InternedText> namesBeginningWith(const TagTable& tags, std::string_view typed, std::size_t most)
{
    std::vector<InternedText> names;
    if (typed.empty())
        return names;
    const std::string beginning = toUpperCase(typed);
    std::string upperName;
    for (int index = 0; index < tags.count() && names.size() < most; ++index)
    {
        const InternedText name = tags[index].name;
        // Cleared rather than made anew: its memory serves all names.
        upperName.clear();
        appendUpperCase(upperName, name.view());
        // What is typed already is no help. In another letter case it is: the map wants a name in exactly its own.
        if (upperName.starts_with(beginning) && name.view() != typed && std::ranges::find(names, name) == names.end())
            names.push_back(name);
    }
    return names;
}
