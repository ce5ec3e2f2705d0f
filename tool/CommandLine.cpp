#include "tool/CommandLine.h"

#include "tool/Messages.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <utility>

namespace
{

/// Exit codes stand in each word's help: scripts look there first.
constexpr const char* checkFooter = "\nExit code: 0 no errors, 1 errors, 2 a file cannot be read.";
constexpr const char* diffFooter =
    "\nExit code: 0 no object differs, 1 objects differ, 3 a locked object changed, 2 a file cannot be read.\n"
    "As git's diff driver: git config diff.tolvane-map.command \"tolvane-map diff --git\"";
constexpr const char* exportFooter = "\nExit code: 0 written, 2 a file cannot be read or written.";
constexpr const char* mainFooter = "\nA path of - is standard input or output. tolvane-map WORD --help tells more.";

constexpr const char* helpDescription = "Print this help and exit";

CLI::Option* addDatabase(CLI::App& word, std::string& path)
{
    return word.add_option("-d,--json", path, "Tag database (JSON)")->type_name("FILE");
}

CLI::Option* addMap(CLI::App& word, std::string& path)
{
    return word.add_option("-m,--modbus", path, "Map definition file")->type_name("FILE")->required();
}

template <typename Value>
CLI::Option* addChoice(CLI::App& word, const std::string& name, Value& value, const std::string& description,
                       const std::map<std::string, Value>& choices, const std::string& shown)
{
    const auto take = [&value, name, choices, shown](const std::string& text)
    {
        const auto choice = choices.find(text);
        if (choice == choices.end())
            throw CLI::ValidationError(name, '"' + text + "\" is none of " + shown);
        value = choice->second;
    };
    return word.add_option_function<std::string>(name, take, description)->type_name(shown);
}

/// Shows in a word's usage what has to be given; the library's own says "[OPTIONS]" only.
class UsageFormatter : public CLI::Formatter
{
public:
    /// @param wordUsage  the word and what follows it
    explicit UsageFormatter(std::string wordUsage) : usage(std::move(wordUsage)) {}

    std::string make_usage(const CLI::App* /*app*/, std::string /*name*/) const override
    {
        return "Usage: tolvane-map " + usage + '\n';
    }

private:
    std::string usage;
};

/// Fills in what the help of every word has.
/// @param usage  the word and what has to be given with it
void describe(CLI::App& word, const char* usage, const char* footer)
{
    word.formatter(std::make_shared<UsageFormatter>(usage));
    word.set_help_flag("-h,--help", helpDescription);
    word.footer(footer);
}

/// The program's words and the options of each.
class CommandLine
{
public:
    CommandLine()
    {
        app.set_version_flag("--version", "tolvane-map " TOLVANE_VERSION, "Print the version and exit");
        app.set_help_flag("-h,--help", helpDescription);
        app.require_subcommand(1);
        app.footer(mainFooter);
        describeCheck();
        describeDiff();
        describeExport();
    }

    Request read(std::vector<std::string> arguments)
    try
    {
        // The library takes them from the end.
        std::ranges::reverse(arguments);
        app.parse(std::move(arguments));
        if (readsInputTwice())
        {
            tell("standard input can be read once only");
            return ExitCode::Failed;
        }
        if (checkWord->parsed())
            return checkOptions;
        if (diffWord->parsed())
            return diffOptions;
        return exportOptions;
    }
    catch (const CLI::ParseError& error)
    {
        if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success))
        {
            std::ostringstream helpOrVersion;
            app.exit(error, helpOrVersion);
            return put(helpOrVersion.str(), ExitCode::Success);
        }
        tell(explanation(error) + "; --help tells more");
        return ExitCode::Failed;
    }

private:
    /// What is wrong with the command line. The library says only that a word is missing where it does not know one.
    std::string explanation(const CLI::ParseError& error) const
    {
        const std::vector<std::string> left = app.remaining();
        if (!app.get_subcommands().empty())
            return error.what();
        return left.empty() ? "one of check, diff, export has to be given"
                            : '"' + left.front() + "\" is none of check, diff, export";
    }

    void describeCheck()
    {
        describe(*checkWord, "check --json FILE --modbus FILE [OPTIONS]", checkFooter);
        addDatabase(*checkWord, checkOptions.databasePath)->required();
        addMap(*checkWord, checkOptions.mapPath);
        checkWord->add_option("--name", checkOptions.name, "What findings call the map (its path)")->type_name("NAME");
        addChoice<ReportFormat>(
            *checkWord, "--format", checkOptions.format, "How findings are written (text)",
            {{"text", ReportFormat::Text}, {"json", ReportFormat::Json}, {"github", ReportFormat::GitHub}},
            "text|json|github");
        addChoice<Warnings>(*checkWord, "--warnings", checkOptions.warnings, "What is done with warnings (on)",
                            {{"off", Warnings::Off}, {"on", Warnings::On}, {"error", Warnings::Error}}, "off|on|error");
        checkWord->add_flag("-q,--quiet", checkOptions.quiet, "Write nothing; the exit code says it");
    }

    void describeDiff()
    {
        describe(*diffWord, "diff [OPTIONS] OLD NEW", diffFooter);
        diffWord->add_option("FILES", diffOptions.arguments, "The old map and the new one; git gives more")
            ->type_name("")
            ->required();
        addDatabase(*diffWord, diffOptions.databasePath)
            ->description("Tag database (JSON): sizes texts whose lines give no length");
        CLI::Option* const git = diffWord->add_flag("--git", diffOptions.git, "Run as git's diff driver");
        addChoice<ReportFormat>(*diffWord, "--format", diffOptions.format, "How differences are written (text)",
                                {{"text", ReportFormat::Text}, {"json", ReportFormat::Json}}, "text|json")
            ->excludes(git);
        diffWord->add_flag("-q,--quiet", diffOptions.quiet, "Write nothing; the exit code says it")->excludes(git);
        diffWord->callback(
            [this]
            {
                if (!diffOptions.git && diffOptions.arguments.size() != 2)
                    throw CLI::ValidationError("FILES", "two maps are compared, the old one and the new one");
            });
    }

    void describeExport()
    {
        describe(*exportWord, "export --modbus FILE --output FILE [OPTIONS]", exportFooter);
        addDatabase(*exportWord, exportOptions.databasePath)
            ->description("Tag database (JSON): sizes texts whose lines give no length");
        addMap(*exportWord, exportOptions.mapPath);
        exportWord
            ->add_option("-o,--output", exportOptions.outputPath,
                         "File to write: CSV when it ends with .csv, else a report")
            ->type_name("FILE")
            ->required();
        addChoice<ExportChoice>(*exportWord, "--format", exportOptions.format, "The format, whatever the file's name",
                                {{"csv", ExportChoice::Csv}, {"text", ExportChoice::Text}}, "csv|text");
    }

    bool readsInputTwice() const
    {
        std::vector<std::string> inputs{checkOptions.databasePath, checkOptions.mapPath, diffOptions.databasePath,
                                        exportOptions.databasePath, exportOptions.mapPath};
        inputs.insert(inputs.end(), diffOptions.arguments.begin(), diffOptions.arguments.end());
        return std::ranges::count(inputs, standardStream) > 1;
    }

    CheckOptions checkOptions;
    DiffOptions diffOptions;
    ExportOptions exportOptions;
    CLI::App app{"Checks, compares and exports Modbus maps without a window.", "tolvane-map"};
    CLI::App* checkWord = app.add_subcommand("check", "Find what is wrong with a map");
    CLI::App* diffWord = app.add_subcommand("diff", "Say what changed between two maps, object by object");
    CLI::App* exportWord = app.add_subcommand("export", "Write a map as CSV or as a text report");
};

} // namespace

Request readCommandLine(std::vector<std::string> arguments)
{
    return CommandLine().read(std::move(arguments));
}
