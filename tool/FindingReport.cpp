#include "tool/FindingReport.h"

#include "review/Wording.h"
#include "text/Integers.h"
#include "text/Lines.h"
#include "tool/JsonText.h"

namespace
{

std::string_view severityWord(Severity severity)
{
    return severity == Severity::Error ? "error" : "warning";
}

/// Appends "SPACE ADDRESS TAGNAME: " as far as the line tells them.
void appendObjectName(std::string& text, const Finding& finding)
{
    if (finding.space.empty() || !finding.address)
        return;
    appendPrintable(text, finding.space);
    text += ' ';
    text += *finding.address < 0 ? std::to_string(*finding.address)
                                 : addressText(static_cast<std::uint32_t>(*finding.address));
    if (!finding.tagname.empty())
    {
        text += ' ';
        appendPrintable(text, finding.tagname);
    }
    text += ": ";
}

/// Appends a finding as one line.
/// @param file  printable
void appendTextLine(std::string& text, std::string_view file, const Finding& finding, Severity severity,
                    const Style& style)
{
    std::string place(file);
    place += ':' + std::to_string(finding.line) + ':';
    style.append(text, Tone::Place, place);
    text += ' ';
    appendObjectName(text, finding);
    style.append(text, severity == Severity::Error ? Tone::Error : Tone::Warning, severityWord(severity));
    text += ": ";
    appendPrintable(text, finding.message);
    text += " [";
    text += ruleName(finding.rule);
    text += ']';
    text += nativeLineEnd;
}

/// A finding as an object in one line.
std::string findingJson(const Finding& finding, Severity severity)
{
    JsonLine json;
    json.beginObject();
    json.member("line", finding.line);
    json.member("severity", severityWord(severity));
    json.member("rule", ruleName(finding.rule));
    if (!finding.space.empty())
        json.member("space", finding.space);
    if (finding.address)
        json.member("address", *finding.address);
    if (!finding.space.empty())
        json.member("tagname", finding.tagname);
    json.member("message", finding.message);
    if (finding.otherLine > 0)
        json.member("otherLine", finding.otherLine);
    if (!finding.suggestion.empty())
        json.member("suggestion", finding.suggestion);
    if (finding.marks > 0)
        json.member("marks", finding.marks);
    json.endObject();
    return json.written();
}

/// Text inside a workflow command: line ends would end it, and inside a property so would colon and comma.
std::string escapedForGitHub(std::string_view text, bool isProperty)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    const std::string_view special = isProperty ? "%\r\n:," : "%\r\n";
    std::string escaped;
    for (const char c : text)
    {
        if (special.find(c) == std::string_view::npos)
        {
            escaped += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        escaped += {'%', digits[byte / digits.size()], digits[byte % digits.size()]};
    }
    return escaped;
}

} // namespace

FindingReport::Counts FindingReport::counts() const
{
    Counts counts;
    for (const Finding& finding : findings)
    {
        ++(severity(finding) == Severity::Error ? counts.errors : counts.warnings);
        counts.marks += finding.marks;
    }
    return counts;
}

std::string findingsAsText(const FindingReport& report, const Style& style)
{
    // Growing bit by bit, the text of a hundred thousand findings would be copied over and over.
    constexpr std::size_t usualLine = 128;
    const std::string file = printable(report.file);
    std::string text;
    text.reserve(report.findings.size() * usualLine);
    for (const Finding& finding : report.findings)
        appendTextLine(text, file, finding, report.severity(finding), style);
    return text;
}

std::string findingsAsJson(const FindingReport& report)
{
    const FindingReport::Counts counts = report.counts();
    JsonText json;
    json.beginObject();
    json.member("file", report.file);
    json.member("errors", counts.errors);
    json.member("warnings", counts.warnings);
    json.member("marks", counts.marks);
    json.key("findings");
    json.beginArray();
    for (const Finding& finding : report.findings)
        json.object(findingJson(finding, report.severity(finding)));
    json.endArray();
    json.endObject();
    return json.take();
}

std::string findingsForGitHub(const FindingReport& report)
{
    const std::string file = escapedForGitHub(printable(report.file), true);
    std::string text;
    for (const Finding& finding : report.findings)
    {
        std::string message;
        appendObjectName(message, finding);
        appendPrintable(message, finding.message);
        text += "::" + std::string(severityWord(report.severity(finding)));
        text += " file=" + file + ",line=" + std::to_string(finding.line);
        text += ",title=" + std::string(ruleName(finding.rule)) + "::" + escapedForGitHub(message, false);
        text += nativeLineEnd;
    }
    return text;
}

std::string summary(const FindingReport& report)
{
    const FindingReport::Counts counts = report.counts();
    return report.file + ": " + counted(counts.errors, "error") + ", " + counted(counts.warnings, "warning") + ", " +
           counted(counts.marks, "error mark") + " in the editor";
}
