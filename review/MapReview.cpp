#include "review/MapReview.h"

#include "map/DefinitionReader.h"
#include "map/Validation.h"
#include "review/FormFindings.h"
#include "review/LineFindings.h"
#include "review/Overlaps.h"
#include "review/TagFindings.h"
#include "text/Decode.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <tuple>
#include <utility>
#include <variant>

namespace
{

/// What reading a file gave.
struct ReadMap
{
    RegisterMap map;
    PlacedLines lines;
    Findings findings; ///< what the lines show, each by itself
};

ReadMap readMap(std::string_view text, const TagTable& tags)
{
    ReadMap read;
    const auto take = [&](const DefinitionFileLine& line)
    {
        if (const auto* const fault = std::get_if<LineFault>(&line.meaning))
        {
            read.findings.push_back(droppedLineFinding(line, *fault));
            return;
        }
        read.lines.push_back({line.number, line.text, std::get<DefinitionObject>(line.meaning)});
        appendLineFindings(read.findings, line, read.lines.back());
    };
    readDefinition(text, read.map, tags, take);
    return read;
}

/// The findings by line and rule; those of one line and rule as they are.
Findings sorted(Findings findings)
{
    // Findings are large: each is moved once, when its place is known.
    std::vector<std::size_t> order(findings.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(),
              [&](std::size_t one, std::size_t other)
              {
                  return std::tuple(findings[one].line, findings[one].rule, one) <
                         std::tuple(findings[other].line, findings[other].rule, other);
              });
    Findings inOrder;
    inOrder.reserve(findings.size());
    for (const std::size_t i : order)
        inOrder.push_back(std::move(findings[i]));
    return inOrder;
}

/// Notes at the lines that something has been said about them.
void noteFindings(PlacedLines& lines, const Findings& findings)
{
    for (const Finding& finding : findings)
    {
        const auto line = std::ranges::lower_bound(lines, finding.line, {}, &PlacedLine::number);
        if (line != lines.end() && line->number == finding.line)
            line->hasFinding = true;
    }
}

} // namespace

Findings reviewMap(const std::string& bytes, const TagTable& tags)
{
    const std::string text = decodeText(bytes);
    ReadMap read = readMap(text, tags);
    validateMap(read.map, tags);
    Findings findings = std::move(read.findings);
    const LineOwners owners(read.lines);
    appendOverlaps(findings, read.lines, owners);
    appendTagFindings(findings, read.lines, owners, read.map, tags);
    noteFindings(read.lines, findings);
    appendOtherForms(findings, read.lines, owners, read.map);
    appendFirstOutOfOrder(findings, read.lines);
    appendEncoding(findings, bytes, text);
    return sorted(std::move(findings));
}
