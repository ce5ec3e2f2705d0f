#include "files/StateFolder.h"

#include <cstdlib>

namespace
{

/// @return empty for a variable that is not set, or that holds no absolute path: such values are to be ignored
std::filesystem::path absolutePathIn(const char* variable)
{
    const char* const value = std::getenv(variable);
    const std::filesystem::path path = value == nullptr ? "" : value;
    return path.is_absolute() ? path : std::filesystem::path();
}

} // namespace

std::filesystem::path stateFolder()
{
    if (const std::filesystem::path state = absolutePathIn("XDG_STATE_HOME"); !state.empty())
        return state / "tolvane";
    const std::filesystem::path home = absolutePathIn("HOME");
    return home.empty() ? home : home / ".local" / "state" / "tolvane";
}
