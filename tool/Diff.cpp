#include "tool/Diff.h"

#include "review/MapDifferences.h"
#include "tool/ChangeReport.h"
#include "tool/GitArguments.h"
#include "tool/Inputs.h"
#include "tool/Messages.h"

#include <algorithm>

namespace
{

ExitCode resultOf(const std::vector<ObjectChange>& changes)
{
    if (std::ranges::any_of(changes, &ObjectChange::breaksLock))
        return ExitCode::LockedChanged;
    return changes.empty() ? ExitCode::Success : ExitCode::Found;
}

/// Reads both maps and compares them.
/// @return nothing when one cannot be read
std::optional<ChangeReport> compare(const std::string& before, const std::string& after, const DiffOptions& options)
{
    TagDatabase database;
    RegisterMap oldMap;
    RegisterMap newMap;
    UnsizedTexts oldUnsized;
    UnsizedTexts newUnsized;
    if (!readDatabase(options.databasePath, database) || !readMap(before, database.tags, oldMap, oldUnsized) ||
        !readMap(after, database.tags, newMap, newUnsized))
        return std::nullopt;
    if (!options.git && !options.quiet && !(oldUnsized.isEmpty() && newUnsized.isEmpty()))
        tellUnsized(options.databasePath, "sizes not compared");
    return ChangeReport{shownPath(before), shownPath(after), mapDifferences(oldMap, newMap, oldUnsized, newUnsized)};
}

std::string written(const ChangeReport& report, ReportFormat format)
{
    return format == ReportFormat::Json ? changesAsJson(report) : changesAsText(report, Style::forOutput());
}

ExitCode diffFiles(const DiffOptions& options)
{
    const std::optional<ChangeReport> report = compare(options.arguments[0], options.arguments[1], options);
    if (!report)
        return ExitCode::Failed;
    const ExitCode result = resultOf(report->changes);
    if (options.quiet)
        return result;
    const ExitCode done = put(written(*report, options.format), result);
    tell(summary(*report));
    return done;
}

/// Git wants all on standard output, where its pager is, and a heading for each file.
ExitCode diffForGit(const DiffOptions& options)
{
    const std::optional<GitComparison> files = gitComparison(options.arguments);
    if (!files)
    {
        tell("git gives a diff driver 1, 7 or 9 arguments, not " + std::to_string(options.arguments.size()));
        return ExitCode::Failed;
    }
    if (files->unmerged)
        return put(heading(files->name + " (in conflict)", Style::forOutput()), ExitCode::Success);
    const std::optional<ChangeReport> report = compare(files->before, files->after, options);
    if (!report)
        return ExitCode::Failed;
    const Style style = Style::forOutput();
    return put(heading(files->name, style) + changesAsText(*report, style) + conclusion(*report), ExitCode::Success);
}

} // namespace

ExitCode diff(const DiffOptions& options)
{
    return options.git ? diffForGit(options) : diffFiles(options);
}
