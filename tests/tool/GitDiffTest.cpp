#include "tests/core/TempFolder.h"
#include "tests/tool/ToolRun.h"

#include <gtest/gtest.h>

namespace
{

const std::string speed = "HOLDING,00100,NONE,FLOAT,SPEED,Speed,2,UNLOCKED,OK\n";
const std::string movedSpeed = "HOLDING,00120,NONE,FLOAT,SPEED,Speed,2,UNLOCKED,OK\n";

/// A repository with a map in it and the two lines of configuration that make git compare maps by object.
class GitDiff : public testing::Test
{
protected:
    GitDiff()
    {
        git("init -q .");
        git("config user.name Test && git config user.email test@example.com");
        git("config diff.tolvane-map.command " + shellWord(shellWord(TOLVANE_MAP) + " diff --git"));
        folder.write(".gitattributes", "map*.csv diff=tolvane-map\n");
        folder.write("map.csv", speed);
        git("add . && git commit -q -m Begin");
    }

    ToolRun git(const std::string& arguments)
    {
        Surroundings surroundings{.folder = folder.path().string()};
        // Neither the user's configuration nor a repository above the folder is to matter.
        surroundings.variables = {{"GIT_CONFIG_GLOBAL", "/dev/null"},
                                  {"GIT_CONFIG_SYSTEM", "/dev/null"},
                                  {"GIT_CEILING_DIRECTORIES", folder.path().parent_path().string()}};
        // Whoever runs the tests from a hook has git's variables point at the repository of that hook.
        return runShell("unset $(git rev-parse --local-env-vars); git " + arguments, surroundings);
    }

    TempFolder folder;
};

} // namespace

TEST_F(GitDiff, ShowsAChangeByObject)
{
    folder.write("map.csv", movedSpeed);
    const ToolRun run = git("diff");
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    EXPECT_EQ(run.output, "map map.csv\n"
                          "~ HOLDING 00120 SPEED: moved from HOLDING 00100 [breaking]\n"
                          "objects that differ: 1 moved; breaking: 1; were locked: 0\n");
    EXPECT_EQ(run.errors, "");
}

TEST_F(GitDiff, ShowsACommitAndTheWayBetweenTwo)
{
    folder.write("map.csv", movedSpeed);
    git("commit -q -a -m Move");
    const std::string moved = "~ HOLDING 00120 SPEED: moved from HOLDING 00100 [breaking]\n";
    EXPECT_NE(git("diff HEAD~ HEAD").output.find(moved), std::string::npos);
    EXPECT_NE(git("show --ext-diff").output.find(moved), std::string::npos);
    EXPECT_NE(git("log -p --ext-diff").output.find(moved), std::string::npos);
}

TEST_F(GitDiff, ShowsANewMapAndOneThatIsGone)
{
    folder.write("map2.csv", speed);
    git("add map2.csv && git rm -q map.csv");
    EXPECT_EQ(git("diff --cached --no-renames").output,
              "map map.csv\n"
              "- HOLDING 00100 SPEED: removed, FLOAT, 2 registers [breaking]\n"
              "objects that differ: 1 removed; breaking: 1; were locked: 0\n"
              "map map2.csv\n"
              "+ HOLDING 00100 SPEED: added, FLOAT, 2 registers\n"
              "objects that differ: 1 added; breaking: 0; were locked: 0\n");
}

TEST_F(GitDiff, ShowsARenamedMap)
{
    std::string lines;
    for (int i = 0; i < 30; ++i)
        lines += "INPUT," + std::to_string(10 + i) + ",NONE,INT16,LEVEL" + std::to_string(i) + ",Level,1,UNLOCKED,OK\n";
    folder.write("map.csv", lines);
    git("commit -q -a -m Fill && git mv map.csv map2.csv");
    folder.write("map2.csv", lines + speed);
    const ToolRun run = git("diff HEAD -M");
    EXPECT_EQ(run.output, "map map.csv -> map2.csv\n"
                          "+ HOLDING 00100 SPEED: added, FLOAT, 2 registers\n"
                          "objects that differ: 1 added; breaking: 0; were locked: 0\n")
        << run.errors;
}

TEST_F(GitDiff, NamesAMapInConflict)
{
    git("checkout -q -b other");
    folder.write("map.csv", movedSpeed);
    git("commit -q -a -m Move && git checkout -q -");
    folder.write("map.csv", "");
    git("commit -q -a -m Empty && git merge other");
    EXPECT_EQ(git("diff --cached").output, "map map.csv (in conflict)\n");
}

TEST_F(GitDiff, RefusesArgumentsThatAreNotGits)
{
    const ToolRun run = runTool({"diff", "--git", "a", "b"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.errors, "tolvane-map: git gives a diff driver 1, 7 or 9 arguments, not 2\n");
}
