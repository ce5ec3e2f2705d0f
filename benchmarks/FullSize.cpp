#include "benchmarks/FullSize.h"

#include "text/Integers.h"

#include <array>
#include <cstdio>

namespace
{

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

/// What a tag tells about a quantity, how the database describes it, and the registers that it is published in.
struct Aspect
{
    Word word;
    const char* typeWord;
    TagType type;
    int size;
    int elements;
    DataType published;
    int registers;
};

constexpr std::array<Aspect, 8> aspects{
    {{{"PV", "process value"}, "Numeric", TagType::Numeric, 4, 1, DataType::Float, 2},
     {{"SP", "set point"}, "Numeric", TagType::Numeric, 4, 2, DataType::Float, 2},
     {{"HI", "high limit"}, "Numeric", TagType::Numeric, 8, 2, DataType::Double, 4},
     {{"LO", "low limit"}, "Integer", TagType::Integer, 4, 2, DataType::Int32, 2},
     {{"ALM", "alarm state"}, "Integer", TagType::Integer, 2, 1, DataType::Int16, 1},
     {{"CMD", "command"}, "Integer", TagType::Integer, 2, 2, DataType::Int16, 1},
     {{"STS", "state in words"}, "String", TagType::String, 20, 1, DataType::String, 10},
     {{"TXT", "operator's note"}, "String", TagType::String, 20, 2, DataType::String, 10}}};

constexpr int tagsPerUnit = static_cast<int>(quantities.size() * aspects.size());
constexpr int unitsPerKind = tagCapacity / tagsPerUnit / static_cast<int>(equipment.size());

/// Numbers the units of one kind of equipment from 001 on; every series has its own numbers.
struct Unit
{
    const Word& kind;
    std::array<char, 16> number{};

    Unit(int index, int series) : kind(equipment[static_cast<std::size_t>(index / unitsPerKind)])
    {
        std::snprintf(number.data(), number.size(), "%03d", 1 + index % unitsPerKind + series * unitsPerKind);
    }
};

struct PlantTag
{
    std::string name;
    std::string description;
    const Aspect& aspect;
    unsigned groups;
};

PlantTag plantTag(int index, int series)
{
    const Unit unit(index / tagsPerUnit, series);
    const auto inUnit = static_cast<std::size_t>(index % tagsPerUnit);
    const Word& quantity = quantities[inUnit / aspects.size()];
    const Aspect& aspect = aspects[inUnit % aspects.size()];
    const unsigned groups = 1U << (inUnit / aspects.size()) | 0x100U << (inUnit % aspects.size());
    return {std::string(unit.kind.code) + unit.number.data() + '_' + quantity.code + '_' + aspect.word.code,
            std::string(unit.kind.meaning) + ' ' + unit.number.data() + ' ' + quantity.meaning + " " +
                aspect.word.meaning,
            aspect, groups};
}

void appendGroup(std::string& json, unsigned mask, const Word& word)
{
    std::array<char, 16> digits{};
    std::snprintf(digits.data(), digits.size(), "%x", mask);
    json += std::string("  {\n   \"mask\": \"") + digits.data() + "\",\n   \"flag\": \"" + word.code +
            "\",\n   \"type\": \"flag\",\n   \"desc\": \"Everything about " + word.meaning + "\"\n  },\n";
}

void endList(std::string& json, const char* closing)
{
    json.erase(json.size() - 2); // the comma and the line end behind the last element
    json += closing;
}

void appendGroups(std::string& json)
{
    json += " \"database_groups\": [\n";
    unsigned mask = 1;
    for (const Word& quantity : quantities)
    {
        appendGroup(json, mask, quantity);
        mask <<= 1U;
    }
    for (const Aspect& aspect : aspects)
    {
        appendGroup(json, mask, aspect.word);
        mask <<= 1U;
    }
    endList(json, "\n ],\n");
}

void appendStructure(std::string& json, int series)
{
    json += " \"structure\": [\n  {\n   \"lable\": \"Plant\",\n   \"dbprefix\": \"\",\n   \"structure\": [\n";
    for (int kind = 0; kind < static_cast<int>(equipment.size()); ++kind)
    {
        const Word& word = equipment[static_cast<std::size_t>(kind)];
        json += std::string("    {\n     \"lable\": \"") + word.meaning + "\",\n     \"dbprefix\": \"" + word.code +
                "\",\n     \"structure\": [\n";
        for (int i = 0; i < unitsPerKind; ++i)
        {
            const Unit unit(kind * unitsPerKind + i, series);
            json += std::string("      {\n       \"lable\": \"") + word.meaning + ' ' + unit.number.data() +
                    "\",\n       \"dbprefix\": \"" + word.code + unit.number.data() + "_\"\n      },\n";
        }
        endList(json, "\n     ]\n    },\n");
    }
    endList(json, "\n   ]\n  }\n ],\n");
}

void appendTag(std::string& json, const PlantTag& tag)
{
    json += "  {\n   \"Name\": \"" + tag.name + "\",\n   \"Description\": \"" + tag.description +
            "\",\n   \"Type\": \"" + tag.aspect.typeWord + "\",\n   \"Size\": " + std::to_string(tag.aspect.size) +
            ",\n   \"Elements\": " + std::to_string(tag.aspect.elements) +
            ",\n   \"Attributes\": 0,\n   \"Groups\": " + std::to_string(tag.groups) + "\n  },\n";
}

RegisterEntry entryOf(const PlantTag& tag)
{
    RegisterEntry entry;
    entry.tagname = InternedText(tag.name);
    entry.description = InternedText(tag.description);
    return entry;
}

} // namespace

std::string fullDatabaseJson(int series)
{
    std::string json = "{\n";
    appendGroups(json);
    appendStructure(json, series);
    json += " \"database\": [\n";
    for (int i = 0; i < tagCapacity; ++i)
        appendTag(json, plantTag(i, series));
    endList(json, "\n ]\n}\n");
    return json;
}

TagTable fullTags()
{
    TagTable tags;
    for (int i = 0; i < tagCapacity; ++i)
    {
        const PlantTag tag = plantTag(i, 0);
        TagRecord record;
        record.name = InternedText(tag.name);
        record.description = InternedText(tag.description);
        record.type = tag.aspect.type;
        record.size = static_cast<std::uint8_t>(tag.aspect.size);
        record.elements = tag.aspect.elements;
        record.groups = tag.groups;
        tags.append(record);
    }
    return tags;
}

std::string fullTagLines()
{
    std::string lines;
    for (int i = 0; i < tagCapacity; ++i)
    {
        const PlantTag tag = plantTag(i, 0);
        lines += tag.name + '\t' + tag.description + '\n';
    }
    return lines;
}

void fillWithObjects(RegisterMap& map)
{
    constexpr int tagsPerSpace = tagCapacity / spaceCount;
    for (const RegisterSpace space : allSpaces)
    {
        int address = 0;
        for (int i = 0; i < tagsPerSpace; ++i)
        {
            const PlantTag tag = plantTag(static_cast<int>(space) * tagsPerSpace + i, 0);
            RegisterEntry entry = entryOf(tag);
            entry.type = tag.aspect.published;
            entry.registerCount = static_cast<std::uint32_t>(tag.aspect.registers);
            entry.SwapWords = tag.aspect.registers == 2;
            entry.write = tag.aspect.elements > 1;
            map.placeObject(space, address, entry, tag.aspect.registers);
            address += tag.aspect.registers;
        }
    }
}

void fillWithSingleRegisters(RegisterMap& map)
{
    for (int i = 0; i < tagCapacity; ++i)
    {
        const PlantTag tag = plantTag(i, 0);
        RegisterEntry entry = entryOf(tag);
        entry.type = tag.aspect.published;
        for (const RegisterSpace space : allSpaces)
            map.placeObject(space, i, entry, 1);
    }
}

std::unique_ptr<RegisterSlots> copyOf(const RegisterSlots& slots)
{
    return std::make_unique<RegisterSlots>(slots);
}
