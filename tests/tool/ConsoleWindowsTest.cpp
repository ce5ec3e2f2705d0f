// The consoles of Windows, each of which has a code page that may be any.

#include "tests/core/TempFolder.h"
#include "tests/tool/ToolRun.h"

#include <gtest/gtest.h>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace
{

constexpr UINT westernEurope = 850;

/// The console of the tests, with a code page of its own meanwhile; one is made where there is none.
class Console : public testing::Test
{
protected:
    Console() : codePage(::GetConsoleOutputCP())
    {
        if (codePage == 0)
        {
            // Under Wine 8.0 a program that a Unix shell has started belongs to a console that is none, and gets no
            // other before it has left that.
            ::FreeConsole();
            ::AllocConsole();
        }
        ::SetConsoleOutputCP(westernEurope);
    }

    ~Console() override
    {
        if (codePage == 0)
            ::FreeConsole();
        else
            ::SetConsoleOutputCP(codePage);
    }

private:
    UINT codePage; ///< of the console that was there, 0 where none was
};

} // namespace

TEST_F(Console, ShowsResultsAndMessagesWithAnyLettersAndKeepsItsCodePage)
{
    const TempFolder folder;
    folder.write(u8"n\u00e4\u03a9.csv", "HOLDING,00100,NONE,FLOAT,P\u00dcMP,Speed,2,UNLOCKED,OK\r\n");
    folder.write("empty.csv", "");
    const ToolRun run =
        runToolOnTerminal({"diff", "n\u00e4\u03a9.csv", "empty.csv"}, {.folder = folder.path().string()});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_NE(run.output.find("- HOLDING 00100 P\u00dcMP:"), std::string::npos) << run.output;
    const ToolRun failed = runToolOnTerminal({"diff", "f\u00e4hlt\u03a9.csv", "empty.csv"});
    EXPECT_TRUE(failed.output.starts_with("tolvane-map: f\u00e4hlt\u03a9.csv: cannot be read")) << failed.output;
    EXPECT_EQ(::GetConsoleOutputCP(), westernEurope);
}
