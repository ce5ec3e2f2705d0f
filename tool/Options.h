#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The path that stands for standard input, or for standard output where something is written.
constexpr std::string_view standardStream = "-";

/// What is done with warnings.
enum class Warnings
{
    Off, ///< they are neither shown nor counted
    On,  ///< they are shown and change no exit code
    Error
};

/// How results are written.
enum class ReportFormat
{
    Text,  ///< for people, one line for each result
    Json,  ///< for tools, one object
    GitHub ///< findings as commands that mark the lines of a change under review
};

/// `tolvane-map check`. Paths are as given, here and below, and may be `standardStream`.
struct CheckOptions
{
    std::string databasePath;
    std::string mapPath;
    std::string name; ///< what findings call the map; empty for its path
    ReportFormat format = ReportFormat::Text;
    Warnings warnings = Warnings::On;
    bool quiet = false; ///< nothing is written, the exit code says it all
};

/// `tolvane-map diff`.
struct DiffOptions
{
    std::vector<std::string> arguments; ///< the two paths, or what git gives a diff driver
    std::string databasePath;           ///< empty for none
    ReportFormat format = ReportFormat::Text;
    bool git = false; ///< run by git
    bool quiet = false;
};

/// How an export looks when its name does not say it.
enum class ExportChoice
{
    ByName,
    Csv,
    Text
};

/// `tolvane-map export`.
struct ExportOptions
{
    std::string databasePath; ///< empty for none
    std::string mapPath;
    std::string outputPath;
    ExportChoice format = ExportChoice::ByName;
};
