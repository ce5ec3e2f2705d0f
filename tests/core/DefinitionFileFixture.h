#pragma once

#include "files/ReadFile.h"
#include "map/DefinitionFile.h"
#include "tests/core/MapBuilder.h"
#include "tests/core/TagBuilder.h"
#include "tests/core/TempFolder.h"
#include "text/Lines.h"

#include <gtest/gtest.h>

#include <string>

/// How a line ends that is saved.
inline const std::string lineEnd(nativeLineEnd);

/// A map that is read from files of the test's own and saved to others.
class DefinitionFileFixture : public testing::Test
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

    const RegisterEntry& slot(int address, RegisterSpace space = RegisterSpace::Holding) const
    {
        return map.slots(space)[address];
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
