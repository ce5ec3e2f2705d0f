#include "tests/tool/HelpOptions.h"

#include "tests/tool/ToolRun.h"

#include <algorithm>
#include <iterator>
#include <sstream>

Options optionsIn(std::string_view text)
{
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz-";
    Options options;
    for (std::size_t at = text.find('-'); at != std::string_view::npos; at = text.find('-', at))
    {
        const std::size_t end = std::min(text.find_first_not_of(letters, at), text.size());
        const bool beginsWord = at == 0 || std::string_view(" \n,[`'\"(").find(text[at - 1]) != std::string_view::npos;
        const std::string option(text.substr(at, end - at));
        if (beginsWord && option.find_first_not_of('-') != std::string::npos)
            options.insert(option);
        at = end;
    }
    return options;
}

Options optionsOfHelp(const std::string& word)
{
    std::vector<std::string> arguments{"--help"};
    if (!word.empty())
        arguments.insert(arguments.begin(), word);
    std::istringstream help(runTool(arguments).output);
    Options options;
    for (std::string line; std::getline(help, line);)
    {
        if (line.starts_with("  -"))
            options.merge(optionsIn(line.substr(0, line.find("  ", 2))));
    }
    return options;
}

Options longOnes(const Options& options)
{
    Options chosen;
    std::ranges::copy_if(options, std::inserter(chosen, chosen.end()),
                         [](const std::string& option) { return option.starts_with("--"); });
    return chosen;
}
