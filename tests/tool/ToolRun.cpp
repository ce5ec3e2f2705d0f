#include "tests/tool/ToolRun.h"

#include "files/ReadFile.h"
#include "tests/core/TempFolder.h"

#include <cstdlib>
#include <sys/wait.h>

std::string shellWord(std::string_view word)
{
    std::string shell = "'";
    for (const char c : word)
        shell += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return shell + "'";
}

namespace
{

std::string commandOf(const std::vector<std::string>& arguments)
{
    std::string command = shellWord(TOLVANE_MAP);
    for (const std::string& argument : arguments)
        command += ' ' + shellWord(argument);
    return command;
}

std::string assignments(const std::map<std::string, std::string>& variables)
{
    std::string text;
    for (const auto& [name, value] : variables)
        text += "export " + name + '=' + shellWord(value) + "; ";
    return text;
}

} // namespace

ToolRun runShell(const std::string& command, const Surroundings& surroundings)
{
    const TempFolder folder;
    const auto input = folder.write("input", surroundings.input);
    const std::string output = surroundings.outputFile.empty() ? (folder / "output").string() : surroundings.outputFile;
    // The language of whoever runs the tests decides neither what the system's commands say nor how they sort.
    const std::string line = "unset NO_COLOR LANGUAGE; export LC_ALL=C.UTF-8; " + assignments(surroundings.variables) +
                             "cd " + shellWord(surroundings.folder) + " && { " + command + "; } <" +
                             shellWord(input.string()) + " >" + shellWord(output) + " 2>" +
                             shellWord((folder / "errors").string());
    const int status = std::system(line.c_str()); // a test's own command
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1,
            surroundings.outputFile.empty() ? readFile(output).value_or("") : "",
            readFile(folder / "errors").value_or("")};
}

ToolRun runTool(const std::vector<std::string>& arguments, const Surroundings& surroundings)
{
    return runShell(commandOf(arguments), surroundings);
}

ToolRun runToolOnTerminal(const std::vector<std::string>& arguments, const Surroundings& surroundings)
{
    // script(1) of util-linux gives the command a terminal and copies what appears there.
    return runShell("script --quiet --return --command " + shellWord(commandOf(arguments)) + " /dev/null",
                    surroundings);
}
