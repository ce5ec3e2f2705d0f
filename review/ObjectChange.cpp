#include "review/ObjectChange.h"

#include <algorithm>
#include <array>

namespace
{

struct ChangeFacts
{
    std::string_view name;
    bool breaking;
};

constexpr std::array<ChangeFacts, 11> facts{{{"added", false},
                                             {"removed", true},
                                             {"moved", true},
                                             {"type", true},
                                             {"size", true},
                                             {"overwritten", true},
                                             {"uncovered", true},
                                             {"byte order", true},
                                             {"write", true},
                                             {"description", false},
                                             {"lock", false}}};

} // namespace

std::string_view changeName(ChangeKind kind)
{
    return facts[static_cast<std::size_t>(kind)].name;
}

bool isBreaking(ChangeKind kind)
{
    return facts[static_cast<std::size_t>(kind)].breaking;
}

bool ObjectChange::isBreaking() const
{
    return std::ranges::any_of(kinds, ::isBreaking);
}
