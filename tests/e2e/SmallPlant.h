#pragma once

#include "tests/e2e/EndToEnd.h"

/// A test on a plant of a few tags whose map it lays out itself.
///
/// The database knows PUMP_RUN and PUMP2_RUN (Integer, may be written), PUMP_SPEED and PUMP2_SPEED (Numeric),
/// TANK_LEVEL (Numeric) and TANK_NAME (String of 5 characters).
class SmallPlant : public EndToEnd
{
protected:
    SmallPlant();

    /// Opens the program on a map.
    /// @param lines  the definition file's whole text
    ProgramUnderTest& openMap(std::string_view lines, const std::vector<std::string>& furtherArguments = {});

    /// The map's text as the file has it now.
    std::string savedMap() const { return contentOf(map); }

    std::filesystem::path database;
    std::filesystem::path map;
};
