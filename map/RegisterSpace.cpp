#include "map/RegisterSpace.h"

// Two names for each space: one is shown, the other stands in files. Both are written out, so that neither changes with
// the other.

namespace
{

struct SpaceNames
{
    std::string_view display;
    std::string_view keyword;
};

constexpr std::array<SpaceNames, spaceCount> names{
    {{"Coil", "COIL"}, {"Input", "INPUT"}, {"Status", "STATUS"}, {"Holding", "HOLDING"}}};

} // namespace

// "Unkown" is spelt so on purpose: the text is required as it stands.
std::string_view spaceDisplayName(int index)
{
    return index >= 0 && index < spaceCount ? names[static_cast<std::size_t>(index)].display : "Unkown";
}

std::string_view spaceKeyword(RegisterSpace space)
{
    return names[static_cast<std::size_t>(space)].keyword;
}

std::optional<RegisterSpace> spaceFromKeyword(std::string_view keyword)
{
    // Exactly: a word in small letters or with a blank beside it drops its line.
    for (const RegisterSpace space : allSpaces)
    {
        if (spaceKeyword(space) == keyword)
            return space;
    }
    return std::nullopt;
}
