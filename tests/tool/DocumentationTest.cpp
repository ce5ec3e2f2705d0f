#include "files/ReadFile.h"
#include "review/Finding.h"
#include "tests/tool/HelpOptions.h"
#include "tests/tool/ToolRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>

namespace
{

const std::string examples = TOLVANE_SOURCES "/docs/guide/examples";

std::string contents(const std::string& path)
{
    return readFile(path).value_or("no file");
}

/// The man page without the marks that keep its hyphens what they are.
std::string manPage()
{
    std::string page = contents(TOLVANE_MAP_PAGE);
    std::erase(page, '\\');
    return page;
}

} // namespace

TEST(Documentation, ShowsInTheGuideWhatCheckWrites)
{
    const ToolRun run =
        runTool({"check", "--json", "plant.json", "--modbus", "plant-changed.csv"}, {.folder = examples});
    EXPECT_EQ(run.output, contents(examples + "/plant-check.txt"));
    EXPECT_EQ(run.exitCode, 1);
}

TEST(Documentation, ShowsInTheGuideWhatDiffWrites)
{
    const ToolRun run = runTool({"diff", "plant.csv", "plant-mended.csv"}, {.folder = examples});
    EXPECT_EQ(run.output, contents(examples + "/plant-diff.txt"));
    EXPECT_EQ(run.exitCode, 3);
}

TEST(Documentation, HasSoundMapsInTheGuide)
{
    for (const char* map : {"plant.csv", "plant-mended.csv"})
        EXPECT_EQ(runTool({"check", "--json", "plant.json", "--modbus", map}, {.folder = examples}).output, "") << map;
}

TEST(Documentation, DescribesInTheManPageExactlyTheOptionsOfTheHelp)
{
    const std::string page = manPage();
    Options described;
    std::istringstream options(
        page.substr(page.find(".SH OPTIONS"), page.find(".SH RULES") - page.find(".SH OPTIONS")));
    for (std::string line; std::getline(options, line);)
    {
        if (line == ".TP" && std::getline(options, line))
            described.merge(optionsIn(line));
    }
    Options offered;
    for (const char* word : {"", "check", "diff", "export"})
        offered.merge(optionsOfHelp(word));
    EXPECT_EQ(described, offered);
}

TEST(Documentation, ShowsInTheSynopsisExactlyTheOptionsOfEachWord)
{
    const std::string page = manPage();
    for (const std::string word : {"check", "diff", "export"})
    {
        Options shown{"--help"}; // understood
        const std::string begin = ".SY tolvane-map~" + word + '\n';
        for (std::size_t at = page.find(begin); at != std::string::npos; at = page.find(begin, at + 1))
            shown.merge(optionsIn(page.substr(at, page.find(".YS", at) - at)));
        EXPECT_EQ(shown, longOnes(optionsOfHelp(word))) << word;
    }
}

TEST(Documentation, NamesEveryOptionInTheGuideAndNoOtherInItsCommands)
{
    const std::string guide = contents(TOLVANE_SOURCES "/docs/guide/scripts.adoc");
    for (const std::string word : {"check", "diff", "export"})
    {
        const Options offered = optionsOfHelp(word);
        const Options named = optionsIn(guide);
        EXPECT_TRUE(std::ranges::includes(named, longOnes(offered))) << word;
        const std::string command = "tolvane-map " + word + ' ';
        for (std::size_t at = guide.find(command); at != std::string::npos; at = guide.find(command, at + 1))
        {
            const std::string line = guide.substr(at, guide.find_first_of("\n`|", at) - at);
            EXPECT_TRUE(std::ranges::includes(offered, optionsIn(line))) << line;
        }
    }
    EXPECT_NE(guide.find("--version"), std::string::npos);
}

TEST(Documentation, TellsTheProgramsVersionInTheManPage)
{
    std::string version = runTool({"--version"}).output;
    ASSERT_FALSE(version.empty());
    version.pop_back();
    EXPECT_NE(manPage().find('"' + version + '"'), std::string::npos);
}

TEST(Documentation, NamesEveryRuleInTheManPageAndTheGuide)
{
    const std::string guide = contents(TOLVANE_SOURCES "/docs/guide/scripts.adoc");
    const std::string page = manPage();
    for (std::size_t rule = 0; rule < ruleCount; ++rule)
    {
        const std::string name(ruleName(static_cast<Rule>(rule)));
        EXPECT_NE(page.find(name), std::string::npos) << name;
        EXPECT_NE(guide.find('`' + name + '`'), std::string::npos) << name;
    }
}
