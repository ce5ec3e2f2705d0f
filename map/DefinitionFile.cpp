#include "map/DefinitionFile.h"

#include "files/ReadFile.h"
#include "files/SafeWrite.h"
#include "map/ByteOrderWords.h"
#include "map/DefinitionReader.h"
#include "map/PublishedName.h"
#include "map/WrittenBack.h"
#include "map/WrittenObjects.h"
#include "text/Decode.h"
#include "text/Integers.h"
#include "text/Lines.h"

#include <cstdint>
#include <new>
#include <system_error>
#include <utility>

// A line of the file, one for each object:
//
//   HOLDING,00100,BYTES+WORDS,FLOAT,Tank1Level.1,Level of tank 1,2,UNLOCKED,OK
//   |       |     |           |     |            |               | |        |
//   space   head  byte order  type  tagname      description     | lock     what validation said, for people only
//                                                                registers, read for a STRING only
//
// ".1" after the tagname lets the master write. A line may end after the registers (7 fields) or the description (6).

namespace
{

void appendLine(std::string& text, RegisterSpace space, const RegisterEntry& head)
{
    appendDefinitionLine(text, space, head);
    text += nativeLineEnd;
}

bool fileExists(const std::filesystem::path& path)
{
    std::error_code ignored;
    return std::filesystem::exists(path, ignored);
}

DefinitionLoad readBytes(std::string bytes, RegisterMap& map, const TagTable& tags)
{
    constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";
    const bool marked = hasByteOrderMark(bytes);
    const std::string text = decodeText(std::move(bytes));
    bool whole = !marked || text.find(replacementCharacter) == std::string::npos;
    const bool comeBack = readDefinition(
        text, map, tags, [&whole](const DefinitionFileLine& line) { whole = whole && isWrittenBack(line); });
    return whole && comeBack ? DefinitionLoad::Whole : DefinitionLoad::Partial;
}

} // namespace

// Texts go out as they stand, neither quoted nor refused: a comma in a description makes ten fields of nine, and the
// next start drops the line. Kept so: the format has no quotes.
void appendDefinitionLine(std::string& text, RegisterSpace space, const RegisterEntry& head)
{
    // For people: the reader passes it over and validates anew.
    const bool valid = head.typeValid && head.writeValid && head.tagIndex != -1;
    text += spaceKeyword(space);
    text += ',';
    text += addressText(head.address);
    text += ',';
    appendByteOrder(text, head);
    text += ',';
    text += typeName(head.type);
    text += ',';
    appendPublishedTagname(text, head);
    text += ',';
    text += head.description.view();
    text += ',';
    text += std::to_string(static_cast<std::int32_t>(head.registerCount));
    text += ',';
    text += lockWord(head.locked);
    text += ',';
    text += valid ? "OK" : "ERROR";
}

DefinitionLoad loadDefinitionFile(const std::filesystem::path& path, RegisterMap& map, const TagTable& tags)
{
    std::optional<std::string> bytes = readFile(path);
    if (!bytes)
        return fileExists(path) ? DefinitionLoad::Unreadable : DefinitionLoad::NoFile;
    try
    {
        return readBytes(std::move(*bytes), map, tags);
    }
    catch (const std::bad_alloc&)
    {
        // A file too large for the memory. Half a map would look like a whole one, so none is better.
        for (const RegisterSpace space : allSpaces)
            clearSlots(map.slots(space), 0, registersPerSpace);
        return DefinitionLoad::Unreadable;
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
