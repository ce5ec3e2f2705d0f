#include "source/TagNames.h"

#include "text/UpperCase.h"

#include <algorithm>
#include <string>

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
        upperName.clear();
        appendUpperCase(upperName, name.view());
        if (upperName.starts_with(beginning) && name.view() != typed && std::ranges::find(names, name) == names.end())
            names.push_back(name);
    }
    return names;
}
