#include "review/LineFindings.h"

#include "map/PublishedName.h"
#include "review/WordFindings.h"
#include "review/Wording.h"
#include "text/Characters.h"
#include "text/Integers.h"

#include <algorithm>
#include <string>

namespace
{

constexpr const char* commaHint = "; is there a comma in the description?";
constexpr const char* anyCommaHint = "; is there a comma in the tagname or description?";

std::string fieldCountMessage(const DefinitionFileLine& line)
{
    if (line.fieldCount > fullForm)
        return std::string("dropped: more than 9 fields") + anyCommaHint;
    const std::string message =
        "dropped: " + counted(static_cast<std::int64_t>(line.fieldCount), "field") + " where an object has 9, 7 or 6";
    // A comma too many makes eight of seven.
    constexpr std::size_t oneTooMany = formWithoutLock + 1;
    return line.fieldCount == oneTooMany ? message + anyCommaHint : message;
}

std::string faultMessage(const DefinitionFileLine& line, LineFault fault)
{
    switch (fault)
    {
    case LineFault::FieldCount:
        return fieldCountMessage(line);
    case LineFault::UnknownSpace:
        return "dropped: " + inQuotes(line.fields.space) + " is none of COIL, INPUT, STATUS, HOLDING";
    case LineFault::DottedTagname:
        return "dropped: the tagname holds a \".\" and does not end in \".1\"";
    case LineFault::NoRegisters:
        return "dropped: a STRING of " + inQuotes(line.fields.count) + " registers has none";
    }
    return "dropped";
}

void appendNumberFindings(Findings& findings, const DefinitionFileLine& line, const PlacedLine& placed)
{
    if (!isWholeNumber(line.fields.address))
        appendFinding(findings, placed, Rule::BadNumber,
                      "the address " + inQuotes(line.fields.address) + " is read as " +
                          std::to_string(placed.object.start));
    if (line.fieldCount == formWithoutCount || isWholeNumber(line.fields.count))
        return;
    const std::string count = "the register count " + inQuotes(line.fields.count);
    if (placed.object.type == DataType::String)
        appendFinding(findings, placed, Rule::BadNumber,
                      count + " is read as " + std::to_string(placed.object.count) + commaHint);
    else
        appendFinding(findings, placed, Rule::IgnoredCount, count + " is no number and passed over" + commaHint);
}

/// Addresses of registers; one alone or first and last.
std::string range(std::int64_t first, std::int64_t last)
{
    return first == last ? std::to_string(first) : std::to_string(first) + " to " + std::to_string(last);
}

void appendCutOffFinding(Findings& findings, const PlacedLine& placed)
{
    const DefinitionObject& object = placed.object;
    const std::int64_t last = std::int64_t{object.start} + object.count - 1;
    if (object.start >= 0 && last <= lastAddress)
        return;
    const std::string registers = (object.count == 1 ? "register " : "registers ") + range(object.start, last);
    const bool anyInside = object.firstAddress() < object.endAddress();
    appendFinding(findings, placed, Rule::CutOff,
                  anyInside
                      ? "cut off: of " + registers + ", only " +
                            range(object.firstAddress(), std::int64_t{object.endAddress()} - 1) + " lie in the space"
                      : "cut off: " + registers + (object.count == 1 ? " lies" : " lie") + " outside 0 to 65535");
}

bool isBitSpace(RegisterSpace space)
{
    return space == RegisterSpace::Coil || space == RegisterSpace::Status;
}

} // namespace

Finding findingAbout(const PlacedLine& line, Rule rule)
{
    Finding finding;
    finding.rule = rule;
    finding.line = line.number;
    finding.space = spaceKeyword(line.object.space);
    finding.address = line.object.start;
    finding.tagname = line.object.tagname;
    return finding;
}

void appendFinding(Findings& findings, const PlacedLine& line, Rule rule, std::string message)
{
    Finding finding = findingAbout(line, rule);
    finding.message = std::move(message);
    findings.push_back(std::move(finding));
}

Finding droppedLineFinding(const DefinitionFileLine& line, LineFault fault)
{
    Finding finding;
    finding.line = line.number;
    if (isBlankLine(line.text))
    {
        finding.rule = Rule::BlankLine;
        finding.message = "blank line, gone after saving";
        return finding;
    }
    // With fewer fields there is no telling which of them stands for what.
    if (line.fieldCount >= formWithoutCount)
    {
        finding.space = line.fields.space;
        finding.address = parseInteger(line.fields.address);
        finding.tagname = line.fields.tagname;
    }
    finding.message = faultMessage(line, fault);
    return finding;
}

void appendLineFindings(Findings& findings, const DefinitionFileLine& line, const PlacedLine& placed)
{
    const DefinitionObject& object = placed.object;
    appendNumberFindings(findings, line, placed);
    appendCutOffFinding(findings, placed);
    if (object.description.size() < line.fields.description.size())
        appendFinding(findings, placed, Rule::Brace,
                      "the description is read up to its \"{\" only, as " + inQuotes(object.description));
    appendWordFindings(findings, line, placed);
    if (isBitSpace(object.space) && object.type != DataType::Int16)
        appendFinding(findings, placed, Rule::BitSpace,
                      "a " + std::string(typeName(object.type)) + " in a space of single bits");
}
