#include "tool/GitArguments.h"

std::optional<GitComparison> gitComparison(const std::vector<std::string>& arguments)
{
    constexpr std::size_t plain = 7;
    constexpr std::size_t renamed = 9;
    if (arguments.size() == 1)
        return GitComparison{.name = arguments[0], .before = {}, .after = {}, .unmerged = true};
    if (arguments.size() != plain && arguments.size() != renamed)
        return std::nullopt;
    const std::string arrow = arguments.size() == renamed ? " -> " + arguments[plain] : "";
    return GitComparison{.name = arguments[0] + arrow, .before = arguments[1], .after = arguments[4]};
}
