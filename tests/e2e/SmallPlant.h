#pragma once

#include "tests/e2e/EndToEnd.h"
#include "tests/e2e/PumpMap.h"

/// A test on a plant of a few tags whose map it lays out itself.
class SmallPlant : public EndToEnd
{
protected:
    SmallPlant();

    /// Opens the program on a map.
    /// @param lines  the definition file's whole text
    ProgramUnderTest& openMap(std::string_view lines, const std::vector<std::string>& furtherArguments = {});

    /// Deletes the object of the first row and waits until it is gone.
    void deleteFirstRow(ProgramUnderTest& program);

    /// Makes the program, when it is started afterwards, as powerless against write protection as it is for everyone
    /// but root.
    static void obeyWriteProtection();

    /// The map's text as the file has it now.
    std::string savedMap() const { return contentOf(map); }

    std::filesystem::path database;
    std::filesystem::path map;
};
