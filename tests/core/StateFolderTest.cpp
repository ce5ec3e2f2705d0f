#include "files/StateFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

namespace
{

/// Sets an environment variable while it exists, and puts the old value back.
class Environment
{
public:
    Environment(const char* variable, const char* value) : name(variable)
    {
        if (const char* const before = std::getenv(name))
            old = before;
        ::setenv(name, value, 1);
    }
    ~Environment()
    {
        if (old)
            ::setenv(name, old->c_str(), 1);
        else
            ::unsetenv(name);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    const char* name;
    std::optional<std::string> old;
};

} // namespace

TEST(StateFolder, IsWhereTheSystemNamesIt)
{
    const Environment state("XDG_STATE_HOME", "/state");
    EXPECT_EQ(stateFolder(), "/state/tolvane");
}

TEST(StateFolder, IsInTheHomeWhenNotNamedOrNamedByARelativePath)
{
    const Environment home("HOME", "/home/ann");
    {
        const Environment state("XDG_STATE_HOME", "");
        EXPECT_EQ(stateFolder(), "/home/ann/.local/state/tolvane");
    }
    const Environment state("XDG_STATE_HOME", "state");
    EXPECT_EQ(stateFolder(), "/home/ann/.local/state/tolvane");
}

TEST(StateFolder, IsNowhereWithoutAHome)
{
    const Environment home("HOME", "");
    const Environment state("XDG_STATE_HOME", "");
    EXPECT_EQ(stateFolder(), "");
}
