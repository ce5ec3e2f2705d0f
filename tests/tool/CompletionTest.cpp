#include "tests/core/TempFolder.h"
#include "tests/tool/HelpOptions.h"
#include "tests/tool/ToolRun.h"

#include <gtest/gtest.h>

#include <sstream>

namespace
{

/// What bash offers for the last of these words.
std::vector<std::string> offers(const std::string& words, const std::string& folder = "/")
{
    const std::string script = "source " + shellWord(TOLVANE_COMPLETION) + "; COMP_WORDS=(" + words +
                               "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _tolvane_map; "
                               "printf '%s\\n' \"${COMPREPLY[@]}\" | sort";
    std::istringstream lines(runShell("bash -c " + shellWord(script), {.folder = folder}).output);
    std::vector<std::string> offered;
    for (std::string line; std::getline(lines, line);)
        offered.push_back(line);
    return offered;
}

using Offers = std::vector<std::string>;

} // namespace

TEST(Completion, OffersTheWords)
{
    EXPECT_EQ(offers("tolvane-map ''"), (Offers{"check", "diff", "export"}));
    EXPECT_EQ(offers("tolvane-map ch"), Offers{"check"});
}

TEST(Completion, OffersExactlyTheOptionsOfTheHelpShortOnesToo)
{
    for (const std::string word : {"", "check", "diff", "export"})
    {
        const Offers offered = offers("tolvane-map " + word + " -");
        EXPECT_EQ(Options(offered.begin(), offered.end()), optionsOfHelp(word)) << word;
    }
    EXPECT_EQ(offers("tolvane-map export --o"), Offers{"--output"});
}

TEST(Completion, OffersTheValuesOfAnOption)
{
    EXPECT_EQ(offers("tolvane-map check --format ''"), (Offers{"github", "json", "text"}));
    EXPECT_EQ(offers("tolvane-map diff --format ''"), (Offers{"json", "text"}));
    EXPECT_EQ(offers("tolvane-map export --format ''"), (Offers{"csv", "text"}));
    EXPECT_EQ(offers("tolvane-map check --warnings o"), (Offers{"off", "on"}));
    EXPECT_EQ(offers("tolvane-map check --warnings = e"), Offers{"error"});
}

TEST(Completion, OffersFilesWhereFilesAreWanted)
{
    const TempFolder folder;
    folder.write("plant map.csv", "");
    folder.write("plant.json", "");
    EXPECT_EQ(offers("tolvane-map check --json pl", folder.path().string()), (Offers{"plant map.csv", "plant.json"}));
    EXPECT_EQ(offers("tolvane-map diff plant.", folder.path().string()), Offers{"plant.json"});
}
