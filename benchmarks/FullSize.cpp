#include "benchmarks/FullSize.h"

#include "map/RegisterSpace.h"
#include "source/TagTable.h"

#include <array>
#include <vector>

namespace
{

/// A part of a tagname, and what it means in a description.
struct Word
{
    const char* code;
    const char* meaning;
};

constexpr std::array<Word, 8> equipment{{{"PUMP", "Pump"},
                                         {"VALVE", "Valve"},
                                         {"FAN", "Cooling fan"},
                                         {"TANK", "Storage tank"},
                                         {"HEATX", "Heat exchanger"},
                                         {"MOTOR", "Motor"},
                                         {"COMPR", "Compressor"},
                                         {"FILT", "Filter"}}};

constexpr std::array<Word, 8> quantities{{{"FLOW", "discharge flow"},
                                          {"PRES", "inlet pressure"},
                                          {"TEMP", "temperature"},
                                          {"LEVEL", "level"},
                                          {"SPEED", "speed"},
                                          {"CURR", "motor current"},
                                          {"VIB", "vibration"},
                                          {"POS", "position"}}};

/// What a tag tells about a quantity, how the database describes it, and how the map publishes it.
struct Aspect
{
    Word word;
    const char* typeWord;
    unsigned size;
    unsigned elements;
    const char* published;
    const char* byteOrder;
    int registers;
};

/// Characters of a text.
constexpr unsigned textSize = 20;

constexpr std::array<Aspect, 8> aspects{{{{"PV", "process value"}, "Numeric", 4, 1, "FLOAT", "WORDS", 2},
                                         {{"SP", "set point"}, "Numeric", 4, 2, "FLOAT", "WORDS", 2},
                                         {{"HI", "high limit"}, "Numeric", 8, 2, "DOUBLE", "NONE", 4},
                                         {{"LO", "low limit"}, "Integer", 4, 2, "INT32", "WORDS", 2},
                                         {{"ALM", "alarm state"}, "Integer", 2, 1, "INT16", "NONE", 1},
                                         {{"CMD", "command"}, "Integer", 2, 2, "INT16", "NONE", 1},
                                         {{"STS", "state in words"}, "String", textSize, 1, "STRING", "NONE", 10},
                                         {{"TXT", "operator's note"}, "String", textSize, 2, "STRING", "NONE", 10}}};

constexpr int tagsPerUnit = static_cast<int>(quantities.size() * aspects.size());
constexpr int unitsPerKind = tagCapacity / tagsPerUnit / static_cast<int>(equipment.size());

/// Numbers the units of one kind of equipment; every series has its own numbers.
std::string unitNumber(int unit, int series)
{
    return std::to_string(100 + unit % unitsPerKind + series * unitsPerKind);
}

struct PlantTag
{
    std::string name;
    std::string description;
    const Aspect& aspect;
    unsigned groups;
};

PlantTag plantTag(int index, int series)
{
    const int unit = index / tagsPerUnit;
    const auto inUnit = static_cast<std::size_t>(index % tagsPerUnit);
    const Word& kind = equipment[static_cast<std::size_t>(unit / unitsPerKind)];
    const Word& quantity = quantities[inUnit / aspects.size()];
    const Aspect& aspect = aspects[inUnit % aspects.size()];
    const std::string number = unitNumber(unit, series);
    return {kind.code + number + '_' + quantity.code + '_' + aspect.word.code,
            kind.meaning + (' ' + number) + ' ' + quantity.meaning + ' ' + aspect.word.meaning, aspect,
            1U << (inUnit / aspects.size()) | 0x100U << (inUnit % aspects.size())};
}

std::string member(const char* name, const std::string& text)
{
    return '"' + std::string(name) + "\": \"" + text + '"';
}

std::string member(const char* name, unsigned number)
{
    return '"' + std::string(name) + "\": " + std::to_string(number);
}

std::string object(const std::vector<std::string>& members)
{
    std::string json = "  {\n";
    for (const std::string& each : members)
        json += "   " + each + (&each == &members.back() ? "\n  }" : ",\n");
    return json;
}

/// @param element  the JSON of an element, by its number
template <class E>
std::string list(const char* name, int count, E element)
{
    std::string json = " \"" + std::string(name) + "\": [\n";
    for (int i = 0; i < count; ++i)
        json += element(i) + (i + 1 < count ? ",\n" : "\n ]");
    return json;
}

std::string group(int number)
{
    const auto index = static_cast<std::size_t>(number);
    const Word& word = index < quantities.size() ? quantities[index] : aspects[index - quantities.size()].word;
    const std::string mask = "1248"[index % 4] + std::string(index / 4, '0'); // one bit, in hexadecimal digits
    return object({member("mask", mask), member("flag", word.code), member("type", "flag"),
                   member("desc", std::string("Everything about ") + word.meaning)});
}

/// A node of the tree for each kind of equipment, and below it one for each unit.
std::string kindNode(int kind, int series)
{
    const Word& word = equipment[static_cast<std::size_t>(kind)];
    const auto unitNode = [&](int unit)
    {
        const std::string number = unitNumber(unit, series);
        return object({member("lable", word.meaning + (' ' + number)), member("dbprefix", word.code + number + '_')});
    };
    return object(
        {member("lable", word.meaning), member("dbprefix", word.code), list("structure", unitsPerKind, unitNode)});
}

std::string tagObject(const PlantTag& tag)
{
    return object({member("Name", tag.name), member("Description", tag.description),
                   member("Type", tag.aspect.typeWord), member("Size", tag.aspect.size),
                   member("Elements", tag.aspect.elements), member("Attributes", 0U), member("Groups", tag.groups)});
}

/// One line of a definition file, by what stands in its fields.
std::string objectLine(RegisterSpace space, int address, const PlantTag& tag, const Aspect& published)
{
    const char* const writable = published.elements > 1 ? ".1" : "";
    std::string line(spaceKeyword(space));
    line += ',' + std::to_string(address) + ',' + published.byteOrder + ',' + published.published + ',' + tag.name +
            writable + ',' + tag.description + ',' + std::to_string(published.registers) + ",UNLOCKED,OK\n";
    return line;
}

} // namespace

std::string fullDatabaseJson(int series)
{
    const auto kinds = [&](int kind) { return kindNode(kind, series); };
    const auto plant = [&](int)
    {
        return object({member("lable", "Plant"), member("dbprefix", ""),
                       list("structure", static_cast<int>(equipment.size()), kinds)});
    };
    return "{\n" + list("database_groups", static_cast<int>(quantities.size() + aspects.size()), group) + ",\n" +
           list("structure", 1, plant) + ",\n" +
           list("database", tagCapacity, [&](int tag) { return tagObject(plantTag(tag, series)); }) + "\n}\n";
}

std::string mapOfObjects()
{
    constexpr int tagsPerSpace = tagCapacity / spaceCount;
    std::string lines;
    for (const RegisterSpace space : allSpaces)
    {
        int address = 0;
        for (int i = 0; i < tagsPerSpace; ++i)
        {
            const PlantTag tag = plantTag(static_cast<int>(space) * tagsPerSpace + i, 0);
            lines += objectLine(space, address, tag, tag.aspect);
            address += tag.aspect.registers;
        }
    }
    return lines;
}

std::string mapOfSingleRegisters()
{
    // A text of one register is too short for its tag; anything else fits into one as an INT16.
    constexpr Aspect number{{}, "", 0, 1, "INT16", "NONE", 1};
    constexpr Aspect text{{}, "", 0, 1, "STRING", "NONE", 1};
    std::string lines;
    for (const RegisterSpace space : allSpaces)
    {
        for (int i = 0; i < tagCapacity; ++i)
        {
            const PlantTag tag = plantTag(i, 0);
            lines += objectLine(space, i, tag, tag.aspect.size == textSize ? text : number);
        }
    }
    return lines;
}
