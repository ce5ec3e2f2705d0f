#include "tests/tool/ToolRun.h"

#include <gtest/gtest.h>

namespace
{

bool holds(const std::string& text, std::string_view part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST(CommandLine, HasHelpForTheProgramAndEachWord)
{
    EXPECT_TRUE(holds(runTool({"--help"}).output, "check"));
    for (const char* word : {"check", "diff", "export"})
    {
        const ToolRun run = runTool({word, "--help"});
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_TRUE(holds(run.output, std::string("Usage: tolvane-map ") + word)) << run.output;
        EXPECT_TRUE(holds(run.output, "Exit code: 0"));
        EXPECT_EQ(run.errors, "");
    }
}

TEST(CommandLine, TellsTheVersion)
{
    const ToolRun run = runTool({"--version"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.output.starts_with("tolvane-map ")) << run.output;
    EXPECT_EQ(run.errors, "");
}

TEST(CommandLine, EndsWithTwoAndSaysOnStandardErrorWhatIsWrong)
{
    const std::vector<std::vector<std::string>> wrong{{},
                                                      {"chekc"},
                                                      {"check"},
                                                      {"check", "--json", "a"},
                                                      {"check", "-d", "a", "-m", "b", "--format", "xml"},
                                                      {"check", "-d", "a", "-m", "b", "--warnings", "2"},
                                                      {"check", "-d", "-", "-m", "-"},
                                                      {"diff", "a"},
                                                      {"diff", "a", "b", "c"},
                                                      {"diff", "a", "b", "--format", "github"},
                                                      {"export", "-m", "a"}};
    for (const auto& arguments : wrong)
    {
        const ToolRun run = runTool(arguments);
        EXPECT_EQ(run.exitCode, 2) << testing::PrintToString(arguments);
        EXPECT_EQ(run.output, "") << testing::PrintToString(arguments);
        EXPECT_NE(run.errors, "") << testing::PrintToString(arguments);
    }
}

TEST(CommandLine, NamesTheChoicesWhenNoneOfThemIsGiven)
{
    EXPECT_TRUE(holds(runTool({"check", "-d", "a", "-m", "b", "--format", "xml"}).errors,
                      "--format: \"xml\" is none of text|json|github\n"));
    EXPECT_TRUE(holds(runTool({"check", "-d", "a", "-m", "b", "--warnings", "2"}).errors, "is none of off|on|error\n"));
}
