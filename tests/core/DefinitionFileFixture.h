#pragma once

#include "files/ReadFile.h"
#include "map/DefinitionFile.h"
#include "tests/core/TempFolder.h"

#include <gtest/gtest.h>

#include <string>

/// A map that is read from files of the test's own and saved to others.
class DefinitionFileTest : public testing::Test
{
protected:
    /// Reads a file of these bytes into the map.
    void load(std::string_view bytes)
    {
        EXPECT_TRUE(isLoaded(loadDefinitionFile(folder.write("map.csv", bytes), map, tags)));
    }

    /// What saving the map writes.
    std::string saved() const
    {
        const std::filesystem::path file = folder / "saved.csv";
        EXPECT_TRUE(saveDefinitionFile(file, map));
        return readFile(file).value_or("no file");
    }

    void addTag(std::string_view name, TagType type, std::uint8_t size, std::int32_t elements = 2)
    {
        TagRecord tag;
        tag.name = InternedText(name);
        tag.type = type;
        tag.size = size;
        tag.elements = elements;
        tags.append(tag);
    }

    const RegisterEntry& slot(int address, RegisterSpace space = RegisterSpace::Holding) const
    {
        return map.slots(space)[address];
    }

    int usedSlots() const
    {
        int count = 0;
        for (const RegisterSpace space : allSpaces)
        {
            for (const RegisterEntry& entry : map.slots(space))
                count += entry.used ? 1 : 0;
        }
        return count;
    }

    bool sameSlotsAs(const RegisterMap& other) const
    {
        for (const RegisterSpace space : allSpaces)
        {
            if (map.slots(space) != other.slots(space))
                return false;
        }
        return true;
    }

    TempFolder folder;
    TagTable tags;
    RegisterMap map;
};
