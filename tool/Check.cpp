#include "tool/Check.h"

#include "review/MapReview.h"
#include "tool/FindingReport.h"
#include "tool/Inputs.h"
#include "tool/Messages.h"

#include <utility>

namespace
{

FindingReport reportOf(Findings findings, const CheckOptions& options)
{
    FindingReport report;
    report.file = options.name.empty() ? shownPath(options.mapPath) : options.name;
    report.warningsAreErrors = options.warnings == Warnings::Error;
    report.findings = std::move(findings);
    if (options.warnings == Warnings::Off)
        std::erase_if(report.findings, [](const Finding& each) { return severityOf(each.rule) == Severity::Warning; });
    return report;
}

std::string written(const FindingReport& report, ReportFormat format)
{
    switch (format)
    {
    case ReportFormat::Json:
        return findingsAsJson(report);
    case ReportFormat::GitHub:
        return findingsForGitHub(report);
    case ReportFormat::Text:
        break;
    }
    return findingsAsText(report, Style::forOutput());
}

} // namespace

ExitCode check(const CheckOptions& options)
{
    TagDatabase database;
    if (!readDatabase(options.databasePath, database))
        return ExitCode::Failed;
    std::optional<std::string> bytes = readInput(options.mapPath);
    if (!bytes)
        return ExitCode::Failed;
    const FindingReport report = reportOf(reviewMap(std::move(*bytes), database.tags), options);
    const ExitCode result = report.counts().errors > 0 ? ExitCode::Found : ExitCode::Success;
    if (options.quiet)
        return result;
    const ExitCode done = put(written(report, options.format), result);
    tell(summary(report));
    return done;
}
