#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

/// What a program left behind.
struct ToolRun
{
    int exitCode = -1; ///< -1 when it did not end by itself
    std::string output;
    std::string errors;
};

/// What a program finds when it is started.
struct Surroundings
{
    std::string input{};                            ///< of standard input
    std::map<std::string, std::string> variables{}; ///< of the environment, beside those of the test
    std::string folder = ".";                       ///< where it is started
    std::string outputFile{};                       ///< where standard output goes; empty for `ToolRun::output`
};

/// Runs a shell command to its end; POSIX systems only.
ToolRun runShell(const std::string& command, const Surroundings& surroundings = {});

/// Runs tolvane-map with these arguments, which are UTF-8. Variables are given on POSIX systems only.
ToolRun runTool(const std::vector<std::string>& arguments, const Surroundings& surroundings = {});

/// Runs tolvane-map with standard output on a terminal of its own; on Windows it is a screen of the console that the
/// tests have, messages go there too, and nothing is put in.
ToolRun runToolOnTerminal(const std::vector<std::string>& arguments, const Surroundings& surroundings = {});

/// A word as a POSIX shell takes it whole.
std::string shellWord(std::string_view word);
