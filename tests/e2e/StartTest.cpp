// How the program starts: with and without its installation, files and options.

#include "tests/e2e/EndToEnd.h"
#include "tests/e2e/Patience.h"

namespace
{

using Start = EndToEnd;

/// The two descriptions that the usage text carries, with the wording that users know.
void expectUsage(const std::string& text)
{
    EXPECT_NE(text.find("Path to of the database JSON file"), std::string::npos) << text;
    EXPECT_NE(text.find("Path to the modbus defintion file"), std::string::npos) << text;
    EXPECT_NE(text.find("swap flags = (SwapBytes << 1) | (SwapWords << 2) | (SwapLongs << 3)"), std::string::npos)
        << text;
}

bool isIcon(const Control& control)
{
    return control.role() == "icon";
}

constexpr const char* noDatabase = "Input file not found\n";

} // namespace

TEST_F(Start, WithoutInstallationOnlyTheAlertIsShownAndTheExitCodeIsZero)
{
    ProgramUnderTest& program = start({}, Installation::Missing);
    const Control alert = program.waitForMessage("Cannot locate registry entries required by this program\n\n"
                                                 "This program cannot continue and will now terminate",
                                                 "Alert - Program cannot continue");
    EXPECT_TRUE(waitFor([&] { return alert.find(isIcon); }));
    EXPECT_FALSE(program.showsMainWindow());
    program.clickButton(alert, "OK");
    EXPECT_EQ(program.waitForExit(), 0);
}

TEST_F(Start, WithoutOptionsTheMissingDatabaseIsReportedAndTheWindowOpensOverAnEmptyMap)
{
    ProgramUnderTest& program = start({});
    program.clickButton(program.waitForMessage(noDatabase), "OK");
    program.waitForMainWindow();
    program.waitForText("  No errors");
    EXPECT_EQ(program.mapGrid().filledRows(), 0);
    EXPECT_EQ(program.tagGrid().filledRows(), 0);
    leaveWithoutQuestion();
    EXPECT_EQ(program.errorOutput(), "");
}

TEST_F(Start, AMapIsShownOnceTheMissingDatabaseHasBeenTold)
{
    const std::filesystem::path map = folder.write("map.csv", "HOLDING,00010,NONE,INT16,NAME,text,1\n");
    ProgramUnderTest& program = start({"--modbus", map.string()});
    const Control message = program.waitForMessage(noDatabase);
    EXPECT_FALSE(program.showsMainWindow());
    program.clickButton(message, "OK");
    program.waitForMainWindow();
    program.waitForText("  WARNING : 1 error(s) found in register map");
    EXPECT_EQ(program.mapGrid().filledRows(), 1);
    leaveWithoutQuestion();
}

TEST_F(Start, OfTwoBadFilesTheDatabaseAloneIsReported)
{
    const std::filesystem::path database = folder.write("plant.json", "nonsense");
    const std::filesystem::path map = folder.write("map.csv", "nonsense");
    ProgramUnderTest& program = start({"--json", database.string(), "--modbus", map.string()});
    program.clickButton(program.waitForMessage("Bad JSON format\n"), "OK");
    program.waitForMainWindow();
    program.waitForText("  No errors");
    EXPECT_EQ(program.mapGrid().filledRows(), 0);
    leaveWithoutQuestion();
}

TEST_F(Start, MainWindowsButtonsAndFilterHaveNamesForScreenReaders)
{
    ProgramUnderTest& program = start({});
    program.clickButton(program.waitForMessage(noDatabase), "OK");
    program.waitForMainWindow();
    const Control window = program.waitForWindow("Modbus Map Editor");
    for (const char* const tooltip : {"Export map to text file", "Show Coil Registers", "Paste - ctrl v"})
    {
        EXPECT_TRUE(window.find([&](const Control& control)
                                { return control.role() == "push button" && control.name() == tooltip; }))
            << tooltip;
    }
    EXPECT_TRUE(
        window.find([](const Control& control) { return control.role() == "text" && control.name() == "Filter"; }));
    leaveWithoutQuestion();
}

/// A start with a command line that cannot be used.
class UnusableCommandLine : public EndToEnd
{
protected:
    void expectUsageAndWindow(const std::vector<std::string>& arguments)
    {
        ProgramUnderTest& program = start(arguments);
        program.clickButton(program.waitForMessage(noDatabase), "OK");
        program.waitForMainWindow();
        expectUsage(program.errorOutput());
        leaveWithoutQuestion();
    }
};

TEST_F(UnusableCommandLine, AnUnknownOptionShowsTheUsageAndTheWindowOpens)
{
    expectUsageAndWindow({"--nonsense"});
}

TEST_F(UnusableCommandLine, ASwapValueThatIsNoNumberShowsTheUsageAndTheWindowOpens)
{
    expectUsageAndWindow({"--swap", "words"});
}

TEST_F(UnusableCommandLine, AskingForHelpShowsTheUsageAndTheWindowOpens)
{
    expectUsageAndWindow({"--help"});
}
