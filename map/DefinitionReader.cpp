#include "map/DefinitionReader.h"

#include "map/DefinitionPlacer.h"
#include "text/Lines.h"
#include "text/Places.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

namespace
{

/// Registers of a STRING whose line does not say: the size of the database tag of that name.
std::optional<std::uint32_t> stringRegistersFromDatabase(std::string_view tagnameField, const TagTable& tags)
{
    const std::optional<InternedText> name = InternedText::known(tagnameField.substr(0, tagnameField.find('.')));
    const std::optional<int> index = name ? tags.find(*name) : std::nullopt;
    // An empty name finds the first unused record, which sizes nothing.
    if (!index || *index >= tags.count())
        return std::nullopt;
    return registersForString(tags[*index].size);
}

/// Registers of a line of six fields, as a text; empty where its type says it. One where nobody says it.
std::string registersNotGiven(DefinitionFileLine& line, const TagTable& tags)
{
    if (typeFromName(line.fields.type) != DataType::String)
        return {};
    const std::optional<std::uint32_t> registers = stringRegistersFromDatabase(line.fields.tagname, tags);
    line.isLengthGuessed = !registers;
    return std::to_string(registers.value_or(1));
}

DefinitionFields fieldsOf(const SplitLine& split)
{
    const auto& f = split.fields;
    // What the short forms do not say is taken as unlocked and sound.
    DefinitionFields fields{f[0], f[1], f[2], f[3], f[4], f[5], f[6], lockWord(false), "OK"};
    if (split.count == fullForm)
    {
        fields.lock = f[7];
        fields.status = f[8];
    }
    return fields;
}

/// About as many lines as a text has, by those at its beginning: counting them all would take 1 ms for 6 MB.
std::size_t linesExpected(std::string_view text)
{
    const std::string_view beginning = text.substr(0, 1U << 16U);
    const auto lines = static_cast<std::size_t>(std::ranges::count(beginning, '\n')) + 1;
    return lines * (text.size() / (beginning.size() + 1) + 1);
}

bool isForm(std::size_t fieldCount)
{
    return fieldCount == fullForm || fieldCount == formWithoutLock || fieldCount == formWithoutCount;
}

void readLine(DefinitionFileLine& line, DefinitionPlacer& placer, const TagTable& tags, const LineObserver& observer)
{
    const SplitLine split = splitLine(line.text);
    line.fieldCount = split.count;
    line.fields = fieldsOf(split);
    line.isLengthGuessed = false;
    line.meaning = LineFault::FieldCount;
    std::string computedCount;
    if (split.count == formWithoutCount)
    {
        computedCount = registersNotGiven(line, tags);
        line.fields.count = computedCount;
    }
    if (isForm(split.count))
        line.meaning = placer.parseDefinitionLine(line.fields);
    if (observer)
        observer(line);
}

} // namespace

SplitLine splitLine(std::string_view line)
{
    SplitLine split;
    std::size_t start = 0;
    const auto takeFieldTo = [&](std::size_t end)
    {
        if (split.count == split.fields.size())
            return;
        split.fields[split.count++] = {line.data() + start, end - start};
        start = end + 1;
    };
    forEachPlaceOf(',', line, takeFieldTo);
    if (start < line.size())
        takeFieldTo(line.size());
    return split;
}

bool readDefinition(std::string_view text, RegisterMap& map, const TagTable& tags, const LineObserver& observer)
{
    // One object a line, hardly ever more.
    DefinitionPlacer placer(map, linesExpected(text));
    DefinitionFileLine line;
    forEachLine(text,
                [&](std::string_view lineText)
                {
                    ++line.number;
                    line.text = lineText;
                    readLine(line, placer, tags, observer);
                });
    placer.placeAll();
    return placer.allComeBack();
}
