#include "tests/tool/ToolRun.h"

#include <gtest/gtest.h>

#include <algorithm>

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

TEST(CommandLine, ShowsInTheUsageWhatHasToBeGiven)
{
    EXPECT_TRUE(holds(runTool({"check", "--help"}).output, "Usage: tolvane-map check --json FILE --modbus FILE"));
    EXPECT_TRUE(holds(runTool({"diff", "--help"}).output, "Usage: tolvane-map diff [OPTIONS] OLD NEW\n"));
    EXPECT_TRUE(holds(runTool({"export", "--help"}).output, "Usage: tolvane-map export --modbus FILE --output FILE"));
}

TEST(CommandLine, NamesAnUnknownWord)
{
    EXPECT_EQ(runTool({"chek", "--json", "a"}).errors,
              "tolvane-map: \"chek\" is none of check, diff, export; --help tells more\n");
    EXPECT_EQ(runTool({}).errors, "tolvane-map: one of check, diff, export has to be given; --help tells more\n");
}

TEST(CommandLine, TellsTheVersion)
{
    const ToolRun run = runTool({"--version"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.output.starts_with("tolvane-map ")) << run.output;
    EXPECT_EQ(run.errors, "");
}

TEST(CommandLine, EndsWithTwoWhenHelpOrVersionCannotBeWritten)
{
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"--version"}, {"--help"}, {"check", "--help"}})
    {
        const ToolRun run = runTool(arguments, {.outputFile = "/dev/full"});
        EXPECT_EQ(run.exitCode, 2) << testing::PrintToString(arguments);
        EXPECT_EQ(run.errors, "tolvane-map: cannot write to standard output: No space left on device\n");
    }
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
                                                      {"diff", "--git", "a", "--format", "json"},
                                                      {"diff", "--git", "a", "--quiet"},
                                                      {"export", "-m", "a"}};
    for (const auto& arguments : wrong)
    {
        const ToolRun run = runTool(arguments);
        EXPECT_EQ(run.exitCode, 2) << testing::PrintToString(arguments);
        EXPECT_EQ(run.output, "") << testing::PrintToString(arguments);
        EXPECT_TRUE(run.errors.starts_with("tolvane-map: ")) << testing::PrintToString(arguments) << run.errors;
        EXPECT_EQ(std::ranges::count(run.errors, '\n'), 1) << testing::PrintToString(arguments) << run.errors;
    }
}

TEST(CommandLine, NamesTheChoicesWhenNoneOfThemIsGiven)
{
    EXPECT_TRUE(holds(runTool({"check", "-d", "a", "-m", "b", "--format", "xml"}).errors,
                      "--format: \"xml\" is none of text|json|github; --help tells more\n"));
    EXPECT_TRUE(holds(runTool({"check", "-d", "a", "-m", "b", "--warnings", "2"}).errors,
                      "is none of off|on|error; --help tells more\n"));
}
