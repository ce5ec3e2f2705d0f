#include "files/ReadFile.h"
#include "review/Finding.h"
#include "tests/tool/ToolRun.h"

#include <gtest/gtest.h>

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
    std::string page = contents(TOLVANE_SOURCES "/tool/man/tolvane-map.1");
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

TEST(Documentation, NamesEveryOptionInTheManPage)
{
    const std::string page = manPage();
    for (const char* word : {"check", "diff", "export"})
    {
        const std::string help = runTool({word, "--help"}).output;
        for (std::size_t at = help.find("--"); at != std::string::npos; at = help.find("--", at + 2))
        {
            const std::string option = help.substr(at, help.find_first_not_of("abcdefghijklmnopqrstuvwxyz-", at) - at);
            EXPECT_NE(page.find(option), std::string::npos) << option;
        }
    }
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
