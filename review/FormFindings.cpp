#include "review/FormFindings.h"

#include "map/DefinitionFile.h"
#include "map/DefinitionReader.h"
#include "text/Lines.h"

#include <array>
#include <string>
#include <utility>

namespace
{

bool ownsItsHead(std::size_t line, const DefinitionObject& object, const LineOwners& owners)
{
    return RegisterSlots::contains(object.start) &&
           owners.at(object.space, object.start) == static_cast<std::int32_t>(line);
}

constexpr std::array<std::string_view, fullForm> fieldNames{
    "space", "address", "byte order", "type", "tagname", "description", "register count", "lock", "status"};

/// What is different about a line of any form, with a colon behind it; empty when it is no field.
std::string difference(std::string_view line, std::string_view written)
{
    const SplitLine is = splitLine(line);
    if (is.count < fullForm)
        return "short form: ";
    const SplitLine willBe = splitLine(written);
    std::string names;
    for (std::size_t field = 0; field < fullForm; ++field)
    {
        if (is.fields[field] != willBe.fields[field])
            names += (names.empty() ? "" : ", ") + std::string(fieldNames[field]);
    }
    return names.empty() ? names : names + ": ";
}

Finding encodingFinding(int line, std::string_view message)
{
    Finding finding;
    finding.rule = Rule::Encoding;
    finding.line = line;
    finding.message = message;
    return finding;
}

constexpr std::string_view nameOf(std::string_view lineEnd)
{
    if (lineEnd == "\n")
        return "LF";
    return lineEnd == "\r" ? "CR" : "CR LF";
}

/// The line end that stands at the beginning of a text; empty at the end of the file.
std::string_view lineEndAt(std::string_view rest)
{
    return rest.substr(0, rest.starts_with("\r\n") ? 2 : 1);
}

} // namespace

void appendOtherForms(Findings& findings, const PlacedLines& lines, const LineOwners& owners, const RegisterMap& map)
{
    std::string written;
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        const DefinitionObject& object = lines[i].object;
        if (lines[i].hasFinding || !ownsItsHead(i, object, owners))
            continue;
        written.clear();
        appendDefinitionLine(written, object.space, map.slots(object.space)[object.start]);
        if (written == lines[i].text)
            continue;
        appendFinding(findings, lines[i], Rule::OtherForm,
                      difference(lines[i].text, written) + "saving writes " + written);
    }
}

void appendFirstOutOfOrder(Findings& findings, const PlacedLines& lines)
{
    const auto place = [](const PlacedLine& line) { return std::pair(line.object.space, line.object.start); };
    for (std::size_t i = 1; i < lines.size(); ++i)
    {
        if (place(lines[i]) >= place(lines[i - 1]))
            continue;
        Finding finding = findingAbout(lines[i], Rule::Order);
        finding.otherLine = lines[i - 1].number;
        finding.message = "saving sorts the lines by space and address; this one comes before line " +
                          std::to_string(finding.otherLine);
        findings.push_back(std::move(finding));
        return;
    }
}

void appendEncoding(Findings& findings, std::string_view text, bool bytesDiffer)
{
    if (bytesDiffer)
        findings.push_back(encodingFinding(1, "saving writes UTF-8 without a byte-order mark"));
    int number = 0;
    bool found = false;
    forEachLine(text,
                [&](std::string_view line)
                {
                    ++number;
                    const auto end = static_cast<std::size_t>(line.data() - text.data()) + line.size();
                    const std::string_view lineEnd = lineEndAt(text.substr(end));
                    if (found || lineEnd == nativeLineEnd)
                        return;
                    found = true;
                    findings.push_back(encodingFinding(
                        number, lineEnd.empty() ? "the last line has no end; saving writes one"
                                                : "the line ends with " + std::string(nameOf(lineEnd)) +
                                                      "; saving writes " + std::string(nameOf(nativeLineEnd))));
                });
}
