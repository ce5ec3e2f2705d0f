#include "files/StateFolder.h"

#include <cstdlib>

// Where desktops agree to keep what a program needs to go on where it stopped. It is neither a setting nor a document
// of the user's, and losing it costs no more than a copy.

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
