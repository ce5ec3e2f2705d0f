#include "map/MapExport.h"

#include "files/SafeWrite.h"
#include "map/PublishedName.h"
#include "map/WrittenObjects.h"
#include "text/Characters.h"
#include "text/Integers.h"
#include "text/Lines.h"
#include "text/Utf8.h"

#include <algorithm>
#include <exception>

// The same object in both formats:
//
//   CSV      HOLDING,00100,FLOAT,2,BW-,Tank1Level.1,Level of tank 1
//   report   00100    FLOAT   2          BW-    Tank1Level.1          Level of tank 1
//
// ".1" marks a tag that the master may write, as in the definition file. Nothing is quoted in the CSV, on purpose:
// texts stand as they are. The description comes last, where a comma in it does the least harm.

namespace
{

void appendLine(std::string& text, std::string_view line)
{
    text += line;
    text += nativeLineEnd;
}

std::string countText(const RegisterEntry& slot)
{
    return std::to_string(static_cast<std::int32_t>(slot.registerCount));
}

void appendByteOrder(std::string& text, const RegisterEntry& slot)
{
    const auto flags = byteOrderCharacters(slot);
    text.append(flags.data(), flags.size());
}

void appendCsvRow(std::string& text, RegisterSpace space, const RegisterEntry& slot)
{
    text += spaceKeyword(space);
    text += ',';
    text += addressText(slot.address);
    text += ',';
    text += typeName(slot.type);
    text += ',';
    text += countText(slot);
    text += ',';
    appendByteOrder(text, slot);
    text += ',';
    appendPublishedTagname(text, slot);
    text += ',';
    appendLine(text, slot.description.view());
}

/// Characters of a UTF-8 text: every byte but those that continue a character.
std::size_t characterCount(std::string_view utf8)
{
    const auto continued = std::count_if(utf8.begin(), utf8.end(), isContinuationByte);
    return utf8.size() - static_cast<std::size_t>(continued);
}

/// Pads what comes after `start` with blanks to a width in characters. Counted in bytes, every umlaut would pull the
/// rest of its line one place to the left.
void padColumn(std::string& text, std::size_t start, std::size_t width)
{
    const std::size_t characters = characterCount(std::string_view(text).substr(start));
    if (characters < width)
        text.append(width - characters, ' ');
}

void appendColumn(std::string& text, std::string_view content, std::size_t width)
{
    const std::size_t start = text.size();
    text += content;
    padColumn(text, start, width);
}

void appendReportRow(std::string& text, const RegisterEntry& slot)
{
    constexpr std::size_t typeColumn = 6;
    constexpr std::size_t countColumn = 3;
    constexpr std::size_t tagnameColumn = 20;
    text += addressText(slot.address);
    text += "    ";
    // The widths and blanks put each field under the first letter of its heading.
    appendColumn(text, typeName(slot.type), typeColumn);
    text += "  ";
    appendColumn(text, countText(slot), countColumn);
    text += "        ";
    appendByteOrder(text, slot);
    text += "    ";
    const std::size_t tagnameStart = text.size();
    appendPublishedTagname(text, slot);
    padColumn(text, tagnameStart, tagnameColumn);
    text += "  ";
    // The last column needs no padding, and blanks at the ends of lines would only make the file longer.
    appendLine(text, slot.description.view());
}

void appendSectionHeading(std::string& text, RegisterSpace space)
{
    appendLine(text, "");
    text += spaceKeyword(space);
    appendLine(text, " REGISTERS");
    appendLine(text, "ADDRESS  TYPE    REG_COUNT  ORDER  TAGNAME               DESCRIPTION");
    appendLine(text, "~~~~~~~  ~~~~    ~~~~~~~~~  ~~~~~  ~~~~~~~~~~~~~~~~~~~~  ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~");
}

} // namespace

ExportFormat exportFormatFor(std::string_view path)
{
    // The end of the text, not the extension of a path: a file that is called just ".csv" has no extension.
    constexpr std::string_view ending = ".csv";
    if (path.size() < ending.size())
        return ExportFormat::Text;
    path.remove_prefix(path.size() - ending.size());
    return std::ranges::equal(path, ending, {}, lowerCase) ? ExportFormat::Csv : ExportFormat::Text;
}

std::string exportCsv(const RegisterMap& map)
{
    std::string text;
    reserveLines(text, map);
    appendLine(text, "SECTION,ADDRESS,TYPE,REG_COUNT,BYTE_ORDER,TAGNAME,DESCRIPTION");
    for (const RegisterSpace space : allSpaces)
    {
        for (const RegisterEntry& slot : map.slots(space))
        {
            if (isWritten(slot))
                appendCsvRow(text, space, slot);
        }
    }
    return text;
}

std::string exportTextReport(const RegisterMap& map)
{
    std::string text;
    reserveLines(text, map);
    appendLine(text, "Modbus Register Map");
    appendLine(text, "-------------------");
    for (const RegisterSpace space : allSpaces)
    {
        // Also for a space without objects: whoever reads the report sees that nothing was left out.
        appendSectionHeading(text, space);
        for (const RegisterEntry& slot : map.slots(space))
        {
            if (isWritten(slot))
                appendReportRow(text, slot);
        }
    }
    return text;
}

bool exportMap(const RegisterMap& map, const std::filesystem::path& path)
try
{
    // As UTF-8 on every system, so that the ending is looked for in one kind of text.
    const std::u8string name = path.u8string();
    const std::string_view utf8(reinterpret_cast<const char*>(name.data()), name.size());
    return writeFileSafely(path, exportFormatFor(utf8) == ExportFormat::Csv ? exportCsv(map) : exportTextReport(map));
}
catch (const std::exception&) // a name that has no UTF-8 form, or not enough memory for the text
{
    return false;
}
