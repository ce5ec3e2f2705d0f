#include "map/DefinitionFile.h"

#include "files/ReadFile.h"
#include "files/SafeWrite.h"
#include "map/DefinitionPlacer.h"
#include "map/PublishedName.h"
#include "map/WrittenObjects.h"
#include "text/Decode.h"
#include "text/Integers.h"
#include "text/Lines.h"

#include <array>
#include <cstdint>
#include <new>

namespace
{

constexpr std::size_t fullForm = 9;
constexpr std::size_t formWithoutLock = 7;
constexpr std::size_t formWithoutCount = 6;

/// The fields of one line. One more than the full form is kept, enough to tell that a line has too many.
struct SplitLine
{
    std::array<std::string_view, fullForm + 1> fields;
    std::size_t count = 0;
};

/// Splits at every comma; an empty field after a final comma is not counted.
SplitLine splitLine(std::string_view line)
{
    SplitLine split;
    while (!line.empty() && split.count < split.fields.size())
    {
        const std::size_t comma = line.find(',');
        split.fields[split.count++] = line.substr(0, comma);
        line.remove_prefix(comma == std::string_view::npos ? line.size() : comma + 1);
    }
    return split;
}

/// Registers of a STRING whose line does not say: the size of the database tag of that name, else one register.
std::uint32_t stringRegistersFromDatabase(std::string_view tagnameField, const TagTable& tags)
{
    const std::optional<InternedText> name = InternedText::known(tagnameField.substr(0, tagnameField.find('.')));
    const std::optional<int> index = name ? tags.find(*name) : std::nullopt;
    // An empty name finds the first unused record, which sizes nothing.
    if (!index || *index >= tags.count())
        return 1;
    return registersForString(tags[*index].size);
}

void readLine(std::string_view line, DefinitionPlacer& placer, const TagTable& tags)
{
    const SplitLine split = splitLine(line);
    const auto& f = split.fields;
    // What the short forms do not say is taken as unlocked and sound.
    DefinitionFields fields{f[0], f[1], f[2], f[3], f[4], f[5], f[6], "UNLOCKED", "OK"};
    std::string computedCount;
    if (split.count == fullForm)
    {
        fields.lock = f[7];
        fields.status = f[8];
    }
    else if (split.count == formWithoutCount)
    {
        if (typeFromName(fields.type) == DataType::String)
            computedCount = std::to_string(stringRegistersFromDatabase(fields.tagname, tags));
        fields.count = computedCount;
    }
    else if (split.count != formWithoutLock)
    {
        return;
    }
    placer.parseDefinitionLine(fields);
}

void appendOrder(std::string& text, const RegisterEntry& head)
{
    const std::size_t begin = text.size();
    const auto append = [&](bool set, std::string_view name)
    {
        if (!set)
            return;
        if (text.size() > begin)
            text += '+';
        text += name;
    };
    append(head.SwapBytes, "BYTES");
    append(head.SwapWords, "WORDS");
    append(head.SwapLongs, "LONGS");
    if (text.size() == begin)
        text += "NONE";
}

/// Texts go out as they stand, neither quoted nor refused: a comma in a description makes ten fields of nine, and the
/// next start drops the line. Kept so: the format has no quotes.
void appendLine(std::string& text, RegisterSpace space, const RegisterEntry& head)
{
    // For people: the reader passes it over and validates anew.
    const bool valid = head.typeValid && head.writeValid && head.tagIndex != -1;
    text += spaceKeyword(space);
    text += ',';
    text += addressText(head.address);
    text += ',';
    appendOrder(text, head);
    text += ',';
    text += typeName(head.type);
    text += ',';
    appendPublishedTagname(text, head);
    text += ',';
    text += head.description.view();
    text += ',';
    text += std::to_string(static_cast<std::int32_t>(head.registerCount));
    text += head.locked ? ",LOCKED," : ",UNLOCKED,";
    text += valid ? "OK" : "ERROR";
    text += nativeLineEnd;
}

} // namespace

bool loadDefinitionFile(const std::filesystem::path& path, RegisterMap& map, const TagTable& tags)
{
    std::optional<std::string> bytes = readFile(path);
    if (!bytes)
        return false;
    try
    {
        const std::string text = decodeText(std::move(*bytes));
        DefinitionPlacer placer(map);
        forEachLine(text, [&](std::string_view line) { readLine(line, placer, tags); });
        placer.placeAll();
        return true;
    }
    catch (const std::bad_alloc&)
    {
        // A file too large for the memory. Half a map would look like a whole one, so none is better.
        for (const RegisterSpace space : allSpaces)
            clearSlots(map.slots(space), 0, registersPerSpace);
        return false;
    }
}

std::string definitionText(const RegisterMap& map)
{
    std::string text;
    reserveLines(text, map);
    for (const RegisterSpace space : allSpaces)
    {
        for (const RegisterEntry& slot : map.slots(space))
        {
            if (isWritten(slot))
                appendLine(text, space, slot);
        }
    }
    return text;
}

bool saveDefinitionFile(const std::filesystem::path& path, const RegisterMap& map)
try
{
    return writeFileSafely(path, definitionText(map));
}
catch (const std::bad_alloc&)
{
    // Nothing has been written yet: the file is as it was, and the changes are still in the map.
    return false;
}
