#include "review/TagFindings.h"

#include "map/ErrorMarks.h"
#include "review/NearestTag.h"
#include "review/Wording.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace
{

/// The marks on the registers that a line still owns.
struct LineMarks
{
    int unknownTag = 0;
    int badType = 0;
    int badWrite = 0;
    std::int32_t tagIndex = -1;

    int total() const { return unknownTag + badType + badWrite; }
    bool any() const { return total() > 0; }

    void count(const RegisterEntry& slot)
    {
        tagIndex = slot.tagIndex;
        unknownTag += slot.tagIndex == -1 ? 1 : 0;
        badType += slot.typeValid ? 0 : 1;
        badWrite += slot.writeValid ? 0 : 1;
    }
};

std::vector<LineMarks> marksOfLines(std::size_t lineCount, const LineOwners& owners, const RegisterMap& map)
{
    std::vector<LineMarks> marks(lineCount);
    for (const RegisterSpace space : allSpaces)
    {
        for (const RegisterEntry& slot : map.slots(space))
        {
            if (hasError(slot))
                marks[static_cast<std::size_t>(owners.at(space, static_cast<int>(slot.address)))].count(slot);
        }
    }
    return marks;
}

/// Suggests names, each once: a map names the same tag in several spaces.
class Suggestions
{
public:
    explicit Suggestions(const TagTable& table) : tags(table), nearest(table) {}

    std::string_view forName(std::string_view name)
    {
        const auto known = found.find(name);
        if (known != found.end() || nearest.isSpent())
            return known != found.end() ? known->second : std::string_view();
        const std::optional<int> index = nearest.find(name);
        return found[name] = index ? tags[*index].name.view() : std::string_view();
    }

private:
    const TagTable& tags;
    NearestTag nearest;
    std::unordered_map<std::string_view, std::string_view> found;
};

std::string badTypeMessage(const DefinitionObject& object, const TagRecord& tag)
{
    const std::string type(typeName(object.type));
    if (tag.type != TagType::String)
        return "a STRING does not suit a tag that is a number";
    if (object.type != DataType::String)
        return type + " does not suit a tag that is a text";
    return counted(object.count, "register") + " for a tag of " + counted(tag.size, "character") + ", which takes " +
           std::to_string(registersForString(tag.size));
}

Finding markFinding(const PlacedLine& line, Rule rule, int marks, std::string message)
{
    Finding finding = findingAbout(line, rule);
    finding.marks = marks;
    finding.message = std::move(message);
    return finding;
}

Finding unknownTagFinding(const PlacedLine& line, int marks, Suggestions& suggestions)
{
    Finding finding = markFinding(line, Rule::UnknownTag, marks, "no tag has this name");
    finding.suggestion = suggestions.forName(line.object.tagname);
    if (!finding.suggestion.empty())
        finding.message += "; did you mean " + finding.suggestion + '?';
    return finding;
}

/// What validation says about an object without a name says nothing about any tag.
Finding noTagnameFinding(const PlacedLine& line, const LineMarks& marks)
{
    return markFinding(line, Rule::NoTagname, marks.total(), "no tagname");
}

void appendMarksOf(Findings& findings, const PlacedLine& line, const LineMarks& marks, const TagTable& tags)
{
    if (marks.tagIndex == -1)
        return;
    const TagRecord& tag = tags[marks.tagIndex];
    if (marks.badType > 0)
        findings.push_back(markFinding(line, Rule::BadType, marks.badType, badTypeMessage(line.object, tag)));
    if (marks.badWrite > 0)
        findings.push_back(markFinding(line, Rule::BadWrite, marks.badWrite,
                                       "the master may not write this tag: it has " + counted(tag.elements, "element") +
                                           " and needs 2"));
}

} // namespace

void appendTagFindings(Findings& findings, const PlacedLines& lines, const LineOwners& owners, const RegisterMap& map,
                       const TagTable& tags)
{
    const std::vector<LineMarks> marks = marksOfLines(lines.size(), owners, map);
    Suggestions suggestions(tags);
    // Growing bit by bit, the findings of a map with another database would be copied over and over.
    findings.reserve(findings.size() + static_cast<std::size_t>(std::ranges::count_if(marks, &LineMarks::any)));
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        if (lines[i].object.tagname.empty())
        {
            findings.push_back(noTagnameFinding(lines[i], marks[i]));
            continue;
        }
        if (marks[i].unknownTag > 0)
            findings.push_back(unknownTagFinding(lines[i], marks[i].unknownTag, suggestions));
        appendMarksOf(findings, lines[i], marks[i], tags);
    }
}
