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
#include <tuple>
#include <utility>
#include <variant>
#include <vector>

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
    // Growing bit by bit, the list of a large map would be copied over and over.
    constexpr std::size_t usualLine = 64;
    ReadMap read;
    read.lines.reserve(text.size() / usualLine);
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
    // Findings are large and lie all over the memory: short keys are sorted in their place, and each finding is moved
    // once.
    using Key = std::tuple<int, Rule, std::size_t>;
    std::vector<Key> keys;
    keys.reserve(findings.size());
    for (const Finding& finding : findings)
        keys.emplace_back(finding.line, finding.rule, keys.size());
    std::ranges::sort(keys);
    Findings inOrder;
    inOrder.reserve(findings.size());
    for (const auto& [line, rule, index] : keys)
        inOrder.push_back(std::move(findings[index]));
    return inOrder;
}

/// Notes at the lines that something has been said about them.
void noteFindings(PlacedLines& lines, const Findings& findings)
{
    if (lines.empty())
        return;
    std::vector<bool> mentioned(static_cast<std::size_t>(lines.back().number) + 1, false);
    for (const Finding& finding : findings)
    {
        if (finding.line <= lines.back().number)
            mentioned[static_cast<std::size_t>(finding.line)] = true;
    }
    for (PlacedLine& line : lines)
        line.hasFinding = mentioned[static_cast<std::size_t>(line.number)];
}

} // namespace

Findings reviewMap(std::string bytes, const TagTable& tags)
{
    // Without a mark, bytes that are no UTF-8 become more of them, and UTF-8 stays as it is.
    const bool hasMark = hasByteOrderMark(bytes);
    const std::size_t size = bytes.size();
    const std::string text = decodeText(std::move(bytes));
    ReadMap read = readMap(text, tags);
    validateMap(read.map, tags);
    Findings findings = std::move(read.findings);
    const LineOwners owners(read.lines);
    appendOverlaps(findings, read.lines, owners);
    appendTagFindings(findings, read.lines, owners, read.map, tags);
    noteFindings(read.lines, findings);
    appendOtherForms(findings, read.lines, owners, read.map);
    appendFirstOutOfOrder(findings, read.lines);
    appendEncoding(findings, text, hasMark || text.size() != size);
    return sorted(std::move(findings));
}
